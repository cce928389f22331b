// HEIC files by libheif. For the program that does nothing else: what the library is given may
// crash it.
#pragma once

#include "core/platform/Result.h"
#include "host/imaging/DecodedPicture.h"

#include <cstdint>
#include <span>

namespace vitrelle::host {

/// The primary picture's size, before any rotation, and no pixels.
Result<DecodedPicture> readSizeWithLibheif(std::span<const std::uint8_t> bytes);

/// The primary picture, neither rotated nor mirrored. Samples of more than 8 bits become 8.
Result<DecodedPicture> decodeWithLibheif(std::span<const std::uint8_t> bytes);

} // namespace vitrelle::host
