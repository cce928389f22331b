// Pictures from JPEG files, by libjpeg-turbo.
#pragma once

#include "core/platform/Result.h"
#include "host/imaging/DecodedPicture.h"

#include <cstdint>
#include <span>

namespace vitrelle::host {

bool isJpeg(std::span<const std::uint8_t> bytes);

/// The size in pixels as stored, whatever an orientation flag says.
Result<PixelSize> readJpegSize(std::span<const std::uint8_t> bytes);

/// Decodes a whole file; an incomplete or damaged one is refused, while stray bytes between two
/// markers are skipped. The ICC profile is carried when it is one for RGB.
Result<DecodedPicture> decodeJpeg(std::span<const std::uint8_t> bytes);

} // namespace vitrelle::host
