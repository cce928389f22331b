// A picture of many symbols in rows, each over its name, for looking at all of them at once.
#pragma once

#include "core/platform/Platform.h"

#include <string>
#include <string_view>
#include <vector>

namespace vitrelle::cli {

/// About square; symbols that have no picture of their own stand out. `scale` is in pixels per
/// point.
Status drawSymbolSheet(const Platform& platform, const std::vector<std::string_view>& names,
                       bool ownColours, int scale, const std::string& file);

} // namespace vitrelle::cli
