// Pictures from HEIC files, by libheif, which is loaded when the first one is read: it brings many
// libraries along, and a command that reads none would pay for their loading at each start. It
// works in a process of its own: hostile files crash it or make it take gigabytes.
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
