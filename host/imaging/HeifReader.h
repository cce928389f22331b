// Pictures from HEIC files, by libheif, in a program beside this one: hostile files crash that
// library or make it take gigabytes, and it brings many others along, which a command that reads
// none would pay for at each start.
#pragma once

#include "core/platform/Result.h"
#include "host/imaging/DecodedPicture.h"

#include <cstdint>
#include <span>

namespace vitrelle::host {

bool isHeif(std::span<const std::uint8_t> bytes);

/// The size in pixels as stored, whatever a rotation or mirroring in the file says.
Result<PixelSize> readHeifSize(std::span<const std::uint8_t> bytes);

/// Decodes the primary picture, neither rotated nor mirrored. Samples of more than 8 bits become 8.
Result<DecodedPicture> decodeHeif(std::span<const std::uint8_t> bytes);

} // namespace vitrelle::host
