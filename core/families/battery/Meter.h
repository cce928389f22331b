// The meters of the Battery family: how full the battery is, as a ring, a square or a capsule.
#pragma once

#include "core/drawing/View.h"
#include "core/platform/PlatformColour.h"

#include <string>

namespace vitrelle {

/// Levels go from 0 to 1 and are drawn as they come: -1, which stands for an unknown one, is minus
/// one hundred per cent on an empty meter.
struct Meter {
  float battery = 0;
  PlatformColour ringColour{1, 1, 1, 1};
  PlatformColour iconColour{1, 1, 1, 1};
  PlatformColour textColour{1, 1, 1, 1};
  std::string symbol = {};
  bool symbolOn = true;
  std::string font = {}; ///< PostScript name; empty for the system's face
  bool percentageOn = true;

  View view() const;
};

struct SquareMeter {
  float battery = 0;
  PlatformColour lineColour{1, 1, 1, 1};
  PlatformColour iconColour{1, 1, 1, 1};
  PlatformColour textColour{1, 1, 1, 1};
  std::string symbol = {};
  bool symbolOn = true;
  std::string font = {}; ///< PostScript name; empty for the system's face
  bool percentageOn = true;

  View view() const;
};

struct LineMeter {
  float battery = 0;
  PlatformColour lineColour{1, 1, 1, 1};

  /// A third of the screen's width long, in points.
  View view(double screenWidth) const;
};

} // namespace vitrelle
