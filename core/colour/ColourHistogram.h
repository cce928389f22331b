// How many pixels of a picture fall into each cell of the 5-bit colour cube: all that the quantiser
// ever learns of a picture, and the only step of it whose time grows with the picture.
#pragma once

#include "core/platform/Image.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace vitrelle {

/// The colour cube: 5 of a sample's 8 bits in each of the three channels.
inline constexpr int sampleShift = 3;
inline constexpr int sampleMultiplier = 8;
inline constexpr int coordinatesPerChannel = 32;
inline constexpr std::size_t histogramCells = std::size_t{1} << 15;

/// The cell of a colour; red is the most significant field. Coordinates are 0 to 31.
constexpr std::size_t cellIndex(int red, int green, int blue) {
  return (static_cast<std::size_t>(red) << 10) + (static_cast<std::size_t>(green) << 5) +
         static_cast<std::size_t>(blue);
}

/// One counter for each of the `histogramCells`.
using ColourHistogram = std::vector<std::int64_t>;

/// Which pixels count, besides those whose alpha sample is at least 125.
struct Sampling {
  std::int64_t stride = 1;  ///< in pixels, across rows; 0 is a fatal error, below 0 takes no pixel
  bool ignoreWhite = false; ///< leaves out pixels with all three samples above 250
};

/// Of packed pixels, four bytes each: alpha, blue, green, red. A last, partial pixel is left out.
ColourHistogram histogramOfPixels(std::span<const std::uint8_t> pixels, const Sampling& sampling);

ColourHistogram histogramOfBitmap(const Bitmap& bitmap, const Sampling& sampling);

} // namespace vitrelle
