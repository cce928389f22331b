// The six families, by name.
#pragma once

#include "core/lifecycle/StyleFamily.h"

#include <string_view>

namespace vitrelle {

/// A name that no family has is a fatal error.
const StyleFamily& styleFamily(std::string_view name);

} // namespace vitrelle
