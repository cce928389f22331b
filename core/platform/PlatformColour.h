// A colour as the platform takes it: sRGB components from 0 to 1.
#pragma once

namespace vitrelle {

struct PlatformColour {
  double red = 0;
  double green = 0;
  double blue = 0;
  double alpha = 1;
  bool operator==(const PlatformColour&) const = default;
};

} // namespace vitrelle
