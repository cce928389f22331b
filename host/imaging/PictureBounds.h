// How large a picture may be. Far above any screenshot or photograph, and small enough that a file
// that lies about its size does not take the machine's memory.
#pragma once

#include "core/platform/Image.h"

namespace vitrelle::host {

inline constexpr std::int64_t mostPixelsOfASide = 32'768;
inline constexpr std::int64_t mostPixels = std::int64_t{64} << 20;

/// Whether a picture of this size, which has pixels, is taken in.
inline bool withinBounds(std::int64_t width, std::int64_t height) {
  return width > 0 && height > 0 && width <= mostPixelsOfASide && height <= mostPixelsOfASide &&
         width * height <= mostPixels;
}

/// Why one that is not is refused.
inline const char* boundsComplaint(std::int64_t width, std::int64_t height) {
  return width <= 0 || height <= 0 ? "the picture has no pixels" : "the picture is too large";
}

} // namespace vitrelle::host
