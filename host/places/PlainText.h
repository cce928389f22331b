// Names as they are compared when people look for one.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vitrelle::host {

/// UTF-8 in lower case and without accents, each run of anything but letters and digits a blank.
/// Commas become lines, so that a list becomes a text of its names. Nothing around a name.
std::string plainText(std::string_view text);

/// Whether it can be shown: UTF-8 without control characters, and not empty.
bool isSoundName(std::string_view text);

} // namespace vitrelle::host
