// A blob of bytes, as the store and the files hold it.
#pragma once

#include <cstdint>
#include <vector>

namespace vitrelle {

using Data = std::vector<std::uint8_t>;

} // namespace vitrelle
