// The coding of a colour that the plain date and the solid background have: its components as
// decimals, "1.0,0.5,0.25,1.0". Records code theirs in hexadecimal digits.
#pragma once

#include "core/platform/PlatformColour.h"

#include <optional>
#include <string>
#include <string_view>

namespace vitrelle {

/// Red, green, blue and alpha, each in the shortest decimal that reads back as the same number.
std::string colourComponents(const PlatformColour& colour);

/// The colour of the first four parts between commas; what follows them is passed over. Components
/// outside of 0 to 1 are brought into it. Nothing when a part is missing or is no number.
std::optional<PlatformColour> parseColourComponents(std::string_view text);

} // namespace vitrelle
