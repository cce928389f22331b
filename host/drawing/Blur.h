// The soft edge of a shadow: three box blurs, which a Gaussian blur is hardly told from.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vitrelle::host {

/// One byte a pixel, rows one after the other.
struct Mask {
  int width = 0;
  int height = 0;
  std::vector<std::uint8_t> samples;

  Mask(int w, int h)
      : width(w), height(h), samples(static_cast<std::size_t>(w) * static_cast<std::size_t>(h)) {}
  std::uint8_t* row(int y) {
    return samples.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(width);
  }
};

/// How far a blur spreads beyond what is blurred, in pixels.
int blurReach(double deviation);

/// Blurs in place. `deviation` is the standard deviation in pixels, 0 leaves the mask as it is;
/// outside the mask there is nothing.
void blur(Mask& mask, double deviation);

} // namespace vitrelle::host
