#include "host/imaging/PngReader.h"

#include "host/imaging/BigEndian.h"
#include "host/imaging/LibpngReader.h"
#include "host/imaging/PictureBounds.h"
#include "host/imaging/PixelBuffer.h"
#include "host/imaging/PngChunks.h"
#include "host/imaging/PngFormat.h"
#include "host/imaging/PngUnfilter.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include <libdeflate.h>

namespace vitrelle::host {

namespace {

Failure refused(std::string why) {
  return {"PNG", std::move(why)};
}

/// What the chunks up to the end of the pixels hold.
struct Contents {
  ColourChunks colours;
  std::optional<PngChunks> pixels; ///< from the first part of the compressed pixels on
  std::size_t compressedBytes = 0;
  bool transparentColour = false;
};

Contents readContents(std::span<const std::uint8_t> file) {
  Contents contents;
  PngChunks chunks(file);
  PngChunks here = chunks;
  for (; const auto chunk = chunks.next(); here = chunks) {
    if (chunk->type == png::IDAT) {
      if (!contents.pixels) contents.pixels = here;
      contents.compressedBytes += chunk->data.size();
    } else if (!contents.pixels) {
      contents.transparentColour = contents.transparentColour || chunk->type == png::tRNS;
      contents.colours.take(*chunk);
    } else {
      break;
    }
  }
  return contents;
}

/// Bytes of a row of the file behind its filter number.
std::size_t rowBytes(const PngHeader& header) {
  const std::size_t channels = header.colourType == png::rgba        ? 4
                               : header.colourType == png::rgb       ? 3
                               : header.colourType == png::greyAlpha ? 2
                                                                     : 1;
  return (static_cast<std::size_t>(header.size.width) * channels * header.bitDepth + 7) / 8;
}

/// Deflate makes at most 1,032 bytes of one, so fewer compressed bytes can't be the whole picture.
bool isTooShort(const PngHeader& header, std::size_t compressedBytes) {
  const std::size_t needed = rowBytes(header) * static_cast<std::size_t>(header.size.height);
  return compressedBytes < needed / 1032;
}

/// The usual screenshot: 8-bit samples of RGB or RGBA, from top to bottom.
bool isPlain(const PngHeader& header, const Contents& contents) {
  return header.bitDepth == 8 && !header.interlaced && !contents.transparentColour &&
         (header.colourType == png::rgb || header.colourType == png::rgba);
}

/// The pixels' parts as one; `memory` holds them if they had to be joined. Empty without memory.
std::span<const std::uint8_t> joined(const Contents& contents,
                                     std::shared_ptr<std::uint8_t>& memory) {
  PngChunks chunks = *contents.pixels;
  auto part = chunks.next();
  if (part->data.size() == contents.compressedBytes) return part->data;
  memory = allocatePixels(contents.compressedBytes);
  if (!memory) return {};
  std::uint8_t* end = memory.get();
  for (; part && part->type == png::IDAT; part = chunks.next())
    end = std::ranges::copy(part->data, end).out;
  return {memory.get(), contents.compressedBytes};
}

/// Whether the zlib stream holds exactly the bytes that `out` has room for, and their checksum.
bool inflate(std::span<const std::uint8_t> stream, std::span<std::uint8_t> out) {
  const std::unique_ptr<libdeflate_decompressor, void (*)(libdeflate_decompressor*)> decompressor(
      libdeflate_alloc_decompressor(), libdeflate_free_decompressor);
  if (!decompressor) return false;
#ifdef FUZZING_BUILD_MODE_UNSAFE_FOR_PRODUCTION
  constexpr std::size_t zlibHeader = 2;
  return stream.size() > zlibHeader &&
         libdeflate_deflate_decompress(decompressor.get(), stream.data() + zlibHeader,
                                       stream.size() - zlibHeader, out.data(), out.size(),
                                       nullptr) == LIBDEFLATE_SUCCESS;
#endif
  return libdeflate_zlib_decompress(decompressor.get(), stream.data(), stream.size(), out.data(),
                                    out.size(), nullptr) == LIBDEFLATE_SUCCESS;
}

/// Nothing when the pixels are not just as they should be.
std::optional<Bitmap> decodePlain(const PngHeader& header, const Contents& contents) {
  const auto width = static_cast<std::size_t>(header.size.width);
  const auto height = static_cast<std::size_t>(header.size.height);
  const bool hasAlpha = header.colourType == png::rgba;
  const std::size_t filteredBytesPerRow = rowBytes(header) + 1;
  const std::size_t filteredBytes = filteredBytesPerRow * height;

  // Rows are unfiltered where they lie. RGBA rows stay there, so each begins a byte further than
  // aligned. RGB rows grow, and lie at the end, where those that are written don't reach them.
  const std::size_t bytesPerRow = hasAlpha ? filteredBytesPerRow : 4 * width;
  const std::size_t size = hasAlpha ? filteredBytes : bytesPerRow * height + rgbHeadStart(width);
  const auto memory = allocatePixels(size);
  if (!memory) return std::nullopt;
  std::uint8_t* const rows = memory.get() + size - filteredBytes;
  {
    std::shared_ptr<std::uint8_t> parts;
    if (!inflate(joined(contents, parts), {rows, filteredBytes})) return std::nullopt;
  }
  std::uint8_t* const out = hasAlpha ? rows + 1 : memory.get();
  const Unfiltered unfiltered = unfilter({.rows = rows,
                                          .bytesPerRow = filteredBytesPerRow,
                                          .width = width,
                                          .height = height,
                                          .bytesPerPixel = hasAlpha ? 4 : 3},
                                         out, bytesPerRow);
  if (unfiltered == Unfiltered::damaged) return std::nullopt;
  return Bitmap{.size = header.size,
                .bytesPerRow = bytesPerRow,
                .pixels = out,
                .opaque = unfiltered == Unfiltered::opaque,
                .owner = memory};
}

} // namespace

bool isPng(std::span<const std::uint8_t> bytes) {
  return bytes.size() >= std::size(png::signature) &&
         std::ranges::equal(bytes.first(std::size(png::signature)), png::signature);
}

Result<PngHeader> readPngHeader(std::span<const std::uint8_t> bytes) {
  if (bytes.size() < pngHeaderBytes || !isPng(bytes)) return refused("the file ends in its header");
  // A chunk of 13 bytes by the name of IHDR.
  const auto header = PngChunks(bytes.first(pngHeaderBytes)).next();
  if (!header || header->type != png::IHDR || header->data.size() != 13 || !isIntact(*header)) {
    return refused("the header is damaged");
  }
  const std::uint8_t* fields = header->data.data();
  const std::int64_t width = readBigEndian32(fields);
  const std::int64_t height = readBigEndian32(fields + 4);
  if (!withinBounds(width, height)) return refused(boundsComplaint(width, height));
  if (fields[10] != 0 || fields[11] != 0) return refused("it is compressed in an unknown way");
  return PngHeader{.size = {static_cast<std::int32_t>(width), static_cast<std::int32_t>(height)},
                   .bitDepth = fields[8],
                   .colourType = fields[9],
                   .interlaced = fields[12] != 0};
}

Result<DecodedPicture> decodePng(std::span<const std::uint8_t> bytes) {
  const Result<PngHeader> header = readPngHeader(bytes);
  if (!header) return header.failure();
  const Contents contents = readContents(bytes);
  if (!contents.pixels || isTooShort(*header, contents.compressedBytes)) {
    return refused("the file is incomplete");
  }
  if (isPlain(*header, contents)) {
    if (auto bitmap = decodePlain(*header, contents)) {
      return DecodedPicture{*std::move(bitmap), contents.colours.profile()};
    }
  }
  // Every other kind, and files that are not quite as they should be.
  Result<Bitmap> bitmap = decodeWithLibpng(bytes, header->size);
  if (!bitmap) return bitmap.failure();
  return DecodedPicture{*std::move(bitmap), contents.colours.profile()};
}

} // namespace vitrelle::host
