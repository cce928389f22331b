// The face of a digital clock, as the widget draws it and as every preview shows it.
#pragma once

#include "core/drawing/View.h"
#include "core/platform/PlatformColour.h"

#include <cstdint>
#include <string>

namespace vitrelle {

/// With a date of a length that is neither short nor full, not even the time is shown.
struct DigitalClockView {
  std::string digitalFont = {};  ///< PostScript name; empty for the system's face
  std::int64_t digitalSize = 16; ///< points
  PlatformColour digitalColour{1, 1, 1, 1};
  bool dateEnabled = false;
  std::int64_t dateLength = 0; ///< 0 short, 1 full
  std::string dateFont = {};
  std::int64_t dateSize = 16;
  PlatformColour dateColour{1, 1, 1, 1};
  std::string time = {}; ///< in words
  std::string date = {}; ///< in words, of the length that is told

  View view() const;
};

} // namespace vitrelle
