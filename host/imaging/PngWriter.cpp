#include "host/imaging/PngWriter.h"

#include "host/imaging/BigEndian.h"
#include "host/imaging/IccProfile.h"
#include "host/imaging/PixelBuffer.h"
#include "host/imaging/PngFilter.h"
#include "host/imaging/PngFormat.h"

#include <algorithm>
#include <cstring>

#include <libdeflate.h>

namespace vitrelle::host {

namespace {

struct Compressor {
  explicit Compressor(int level) : handle(libdeflate_alloc_compressor(level)) {}
  ~Compressor() { libdeflate_free_compressor(handle); }
  Compressor(const Compressor&) = delete;
  Compressor& operator=(const Compressor&) = delete;
  libdeflate_compressor* handle;
};

std::uint8_t* putBytes(std::uint8_t* out, std::span<const std::uint8_t> bytes) {
  if (!bytes.empty()) std::memcpy(out, bytes.data(), bytes.size());
  return out + bytes.size();
}

/// Completes a chunk whose data already stands behind `start`, with 8 bytes left free before it.
std::uint8_t* sealChunk(std::uint8_t* start, std::uint32_t type, std::uint8_t* end) {
  writeBigEndian32(start, static_cast<std::uint32_t>(end - start - 8));
  writeBigEndian32(start + 4, type);
  const auto covered = static_cast<std::size_t>(end - start) - 4;
  writeBigEndian32(end, libdeflate_crc32(0, start + 4, covered));
  return end + 4;
}

std::uint8_t* putChunk(std::uint8_t* out, std::uint32_t type, std::span<const std::uint8_t> data) {
  return sealChunk(out, type, putBytes(out + 8, data));
}

/// The profile compressed, behind a name, as the chunk holds it.
Data iccChunk(const Data& icc) {
  constexpr std::uint8_t head[] = {'i', 'c', 'c', 0, 0}; // name, its end, method
  const Compressor compressor(6);
  Data data(head, std::end(head));
  data.resize(std::size(head) + libdeflate_zlib_compress_bound(compressor.handle, icc.size()));
  const std::size_t size =
      libdeflate_zlib_compress(compressor.handle, icc.data(), icc.size(),
                               data.data() + std::size(head), data.size() - std::size(head));
  data.resize(std::size(head) + size);
  return data;
}

/// Room for the profile's chunks beside the compressed ICC profile.
constexpr std::size_t smallChunksBytes = 256;

std::uint8_t* putProfile(std::uint8_t* out, const ColourProfile& profile, const Data& icc) {
  if (profile.cicp) out = putChunk(out, png::cICP, *profile.cicp);
  if (!icc.empty()) {
    out = putChunk(out, png::iCCP, icc);
  } else if (profile.srgbIntent) {
    out = putChunk(out, png::sRGB, {&*profile.srgbIntent, 1});
  }
  if (profile.gamma) {
    std::uint8_t data[4];
    writeBigEndian32(data, *profile.gamma);
    out = putChunk(out, png::gAMA, data);
  }
  if (profile.chromaticities) {
    std::uint8_t data[32];
    for (std::size_t i = 0; i < 8; ++i)
      writeBigEndian32(data + 4 * i, (*profile.chromaticities)[i]);
    out = putChunk(out, png::cHRM, data);
  }
  return out;
}

} // namespace

struct PngWriter::Layout {
  int bytesPerPixel;
  std::size_t rowBytes;     ///< of one filtered row without its filter number
  std::size_t rowsPerBlock; ///< of the stream
  std::size_t filteredBytes;
};

std::span<const std::uint8_t> PngWriter::encode(const Bitmap& bitmap,
                                                const ColourProfile& profile) {
  const int bytesPerPixel = isOpaque(bitmap) ? 3 : 4;
  const std::size_t rowBytes =
      static_cast<std::size_t>(bitmap.size.width) * static_cast<std::size_t>(bytesPerPixel);
  const auto height = static_cast<std::size_t>(bitmap.size.height);
  const Layout layout{.bytesPerPixel = bytesPerPixel,
                      .rowBytes = rowBytes,
                      .rowsPerBlock =
                          std::max<std::size_t>(PictureDeflate::blockBytes / (rowBytes + 1), 1),
                      .filteredBytes = (rowBytes + 1) * height};
  const Data icc = isRgbProfile(profile.icc) ? iccChunk(profile.icc) : Data();

  const std::size_t capacity =
      PictureDeflate::bound(layout.filteredBytes, height / layout.rowsPerBlock + 1,
                            layout.rowsPerBlock * (rowBytes + 1)) +
      icc.size() + smallChunksBytes;
  if (capacity > fileCapacity_) {
    file_ = allocatePixels(capacity);
    fileCapacity_ = file_ ? capacity : 0;
    if (!file_) return {};
  }

  std::uint8_t* out = putBytes(file_.get(), png::signature);
  std::uint8_t header[13] = {};
  writeBigEndian32(header, static_cast<std::uint32_t>(bitmap.size.width));
  writeBigEndian32(header + 4, static_cast<std::uint32_t>(bitmap.size.height));
  header[8] = 8; // bits
  header[9] = bytesPerPixel == 3 ? png::rgb : png::rgba;
  out = putChunk(out, png::IHDR, header);
  out = putProfile(out, profile, icc);
  out = sealChunk(out, png::IDAT, compress(bitmap, layout, out + 8));
  out = putChunk(out, png::IEND, {});
  return {file_.get(), static_cast<std::size_t>(out - file_.get())};
}

std::uint8_t* PngWriter::compress(const Bitmap& bitmap, const Layout& layout, std::uint8_t* out) {
  // A zlib stream: header, deflate, checksum of the filtered bytes.
  constexpr std::uint8_t zlibHeader[] = {0x78, 0x01};
  std::uint8_t* const deflated = putBytes(out, zlibHeader);
  deflate_.start(deflated);

  // The block that is filled stands behind the end of the one before, for repeats to reach into.
  const std::size_t stride = layout.rowBytes + 1;
  constexpr std::size_t window = PictureDeflate::window;
  const std::size_t fullBlock = layout.rowsPerBlock * stride;
  blocks_.resize(window + fullBlock);
  std::uint8_t* const block = blocks_.data() + window;
  PngRowFilter filter(layout.rowBytes, layout.bytesPerPixel);
  std::uint32_t checksum = 1;
  std::size_t waiting = 0;
  std::size_t history = 0;
  for (std::int32_t y = 0; y < bitmap.size.height; ++y) {
    filter.filter(bitmap.row(y), block + waiting);
    waiting += stride;
    const bool last = y + 1 == bitmap.size.height;
    if (!last && waiting < fullBlock) continue;
    checksum = libdeflate_adler32(checksum, block, waiting);
    deflate_.block({block, waiting}, last, history);
    history = std::min(window, history + waiting);
    std::memmove(block - history, block + waiting - history, history);
    waiting = 0;
  }
  writeBigEndian32(deflate_.end(), checksum);
  return deflate_.end() + 4;
}

bool isOpaque(const Bitmap& bitmap) {
  if (bitmap.opaque) return true;
  for (std::int32_t y = 0; y < bitmap.size.height; ++y) {
    const std::uint8_t* row = bitmap.row(y);
    std::uint8_t all = 0xFF;
    for (std::int32_t x = 0; x < bitmap.size.width; ++x) {
      all = static_cast<std::uint8_t>(all & row[4 * static_cast<std::size_t>(x) + 3]);
    }
    if (all != 0xFF) return false;
  }
  return true;
}

} // namespace vitrelle::host
