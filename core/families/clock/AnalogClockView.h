// The face of an analog clock, as the widget draws it and as every preview shows it.
#pragma once

#include "core/drawing/View.h"
#include "core/platform/PlatformColour.h"

#include <cstdint>
#include <string>

namespace vitrelle {

/// Codes that are not told stand in damaged records and draw nothing.
struct AnalogClockView {
  double timeInSeconds = 0;    ///< since midnight
  std::int64_t complexity = 0; ///< 0 hands, 1 also the hours, 2 also the dial
  std::int64_t dialShape = 0;  ///< 0 a circle, 1 a rounded square
  std::int64_t hoursShape = 0; ///< 0 bars, 1 small dots, 2 large dots
  PlatformColour dialColour{1, 1, 1, 1};
  PlatformColour hoursColour{1, 1, 1, 1};
  PlatformColour armsColour{1, 1, 1, 1};
  bool dateEnabled = false;
  std::int64_t dateLength = 0; ///< 0 short, 1 full
  std::string dateFont = {};   ///< PostScript name; empty for the system's face
  std::int64_t dateSize = 16;  ///< points
  PlatformColour dateColour{1, 1, 1, 1};
  std::string date = {}; ///< in words, of the length that is told

  View view() const;
};

} // namespace vitrelle
