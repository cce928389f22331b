// The end of the program on a broken invariant. Failures of the world are values (Result.h).
#pragma once

#include <cstdint>
#include <string_view>

namespace vitrelle {

/// Prints "Fatal error: " and the words on stderr and aborts.
[[noreturn]] void fatalError(std::string_view words);

/// Signed 64-bit arithmetic in which an overflow is a fatal error.
std::int64_t checkedAdd(std::int64_t left, std::int64_t right);
std::int64_t checkedMultiply(std::int64_t left, std::int64_t right);

} // namespace vitrelle
