// A date in words: a face of its own, and what clocks show beside the time.
#pragma once

#include "core/drawing/View.h"
#include "core/platform/PlatformColour.h"

#include <cstdint>
#include <string>

namespace vitrelle {

struct DateView {
  std::int64_t dateLength = 0; ///< 0 short, 1 full; any other shows nothing
  std::string dateFont = {};   ///< PostScript name; empty for the system's face
  std::int64_t dateSize = 16;  ///< points
  PlatformColour dateColour{1, 1, 1, 1};
  std::string date = {}; ///< in words, of the length that is told

  View view() const;
};

constexpr bool isDateLength(std::int64_t length) {
  return length == 0 || length == 1;
}

} // namespace vitrelle
