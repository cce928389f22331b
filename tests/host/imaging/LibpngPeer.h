// PNG files written and read by libpng, as a second opinion.
#pragma once

#include "core/platform/Data.h"
#include "core/platform/Image.h"

#include <functional>
#include <span>

#include <png.h>

namespace vitrelle::test {

struct PngKind {
  int bitDepth = 8;
  int colourType = PNG_COLOR_TYPE_RGBA;
  bool interlaced = false;
  int filters = PNG_ALL_FILTERS; ///< those that libpng may choose from
  bool filterAtRandom = false;   ///< another for each row, whatever suits it
};

/// A file of this kind filled with reproducible noise; the first pixel's samples are 0. `more` may
/// add chunks before the header is written.
Data writeWithLibpng(std::uint32_t width, std::uint32_t height, const PngKind& kind,
                     const std::function<void(png_structp, png_infop)>& more = {});

/// The pixels as RGBA, 16 bits made 8 by rounding.
Data readWithLibpng(std::span<const std::uint8_t> file, PixelSize& size);

/// A bitmap's pixels without gaps between the rows.
Data packedPixels(const Bitmap& bitmap);

/// A bitmap of these RGBA pixels.
Bitmap bitmapOf(PixelSize size, Data pixels);

} // namespace vitrelle::test
