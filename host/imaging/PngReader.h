// Pictures from PNG files. Takes bytes and gives values; opens no files.
#pragma once

#include "core/platform/Image.h"
#include "core/platform/Result.h"
#include "host/imaging/DecodedPicture.h"

#include <cstdint>
#include <span>

namespace vitrelle::host {

struct PngHeader {
  PixelSize size;
  std::uint8_t bitDepth = 0;
  std::uint8_t colourType = 0;
  bool interlaced = false;
};

bool isPng(std::span<const std::uint8_t> bytes);

/// Enough bytes from the start of a file for its header.
inline constexpr std::size_t pngHeaderBytes = 33;
/// Checks the header, which stands in the first `pngHeaderBytes`, the bounds of the size included.
Result<PngHeader> readPngHeader(std::span<const std::uint8_t> bytes);

/// Decodes a whole file. A picture whose pixels are incomplete or damaged is refused; damage to
/// what does not concern the pixels is passed over.
Result<DecodedPicture> decodePng(std::span<const std::uint8_t> bytes);

} // namespace vitrelle::host
