// A colour as records hold it, and its coding as a string: six hexadecimal digits, RRGGBB.
#pragma once

#include "core/platform/PlatformColour.h"

#include <optional>
#include <string>
#include <string_view>

namespace vitrelle {

/// sRGB components from 0 to 1.
struct Colour {
  float red = 0;
  float green = 0;
  float blue = 0;
  float alpha = 1;
  /// False for a colour without three components of its own: a pure grey, a colour that depends on
  /// its surroundings. It has no coded form.
  bool resolved = true;

  static constexpr Colour unresolved() { return {.resolved = false}; }

  /// The colour that a string of six (RRGGBB) or eight (RRGGBBAA) digits names. White space around
  /// it and every "#" in it are ignored. Any other length is opaque black, and digits are read as
  /// far as they go: "GG0000" is black too.
  static Colour parse(std::string_view text);
  /// Whether a person who writes a colour has written one: six or eight digits, with or without
  /// "#".
  static bool isWritten(std::string_view text);

  /// Upper-case digits without "#", each component rounded to the nearest byte, halves away from
  /// zero. Nothing for an unresolved colour.
  std::optional<std::string> hex(bool includeAlpha) const;

  bool operator==(const Colour&) const = default;
};

/// As it is drawn; an unresolved one as it happens to be.
inline PlatformColour platformColour(const Colour& colour) {
  return {colour.red, colour.green, colour.blue, colour.alpha};
}

namespace colours {

inline constexpr Colour white{1, 1, 1};
inline constexpr Colour accent{0.39F, 0.9F, 0.89F};
inline constexpr Colour batteryGrey{0.17F, 0.17F, 0.18F};

} // namespace colours

} // namespace vitrelle
