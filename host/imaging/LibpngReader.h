// PNG files of the rarer kinds, by libpng: 16-bit, palette, grey, interlaced, transparent colours.
#pragma once

#include "core/platform/Image.h"
#include "core/platform/Result.h"

#include <cstdint>
#include <span>

namespace vitrelle::host {

/// Decodes a file whose header tells this size, which is within bounds. Samples of 16 bits become
/// 8 by rounding. Samples are not converted by what the file says about colours.
Result<Bitmap> decodeWithLibpng(std::span<const std::uint8_t> bytes, PixelSize size);

} // namespace vitrelle::host
