// Any bytes as a picture file: refused, or decoded to a picture that survives being written. HEIC
// is left out, which another library decodes in a process of its own: see DecoderAnswerFuzz.

#include "host/imaging/JpegReader.h"
#include "host/imaging/PngReader.h"
#include "host/imaging/PngWriter.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace {

using namespace vitrelle;
using namespace vitrelle::host;

bool samePixels(const Bitmap& left, const Bitmap& right) {
  if (left.size != right.size) return false;
  for (std::int32_t y = 0; y < left.size.height; ++y) {
    const auto* row = left.row(y);
    if (!std::equal(row, row + 4 * static_cast<std::size_t>(left.size.width), right.row(y))) {
      return false;
    }
  }
  return true;
}

void checkRoundTrip(const DecodedPicture& picture) {
  // Large ones only cost time.
  if (std::int64_t{picture.bitmap.size.width} * picture.bitmap.size.height > 1 << 20) return;
  PngWriter writer;
  const auto bytes = writer.encode(picture.bitmap, picture.profile);
  const auto again = decodePng({bytes.data(), bytes.size()});
  if (!again || !samePixels(picture.bitmap, again->bitmap)) std::abort();
}

template <class Size, class Decode>
void check(std::span<const std::uint8_t> bytes, Size readSize, Decode decode) {
  const auto size = readSize(bytes);
  // What the header promises is bounded, but still too much for thousands of runs a second.
  if (size && std::int64_t{size->width} * size->height > 4 << 20) return;
  const auto picture = decode(bytes);
  if (!picture) return;
  if (!size || picture->bitmap.size != *size) std::abort();
  checkRoundTrip(*picture);
}

Result<PixelSize> pngSize(std::span<const std::uint8_t> bytes) {
  const auto header = readPngHeader(bytes);
  if (!header) return header.failure();
  return header->size;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::span<const std::uint8_t> bytes(data, size);
  if (isPng(bytes)) check(bytes, pngSize, decodePng);
  if (isJpeg(bytes)) check(bytes, readJpegSize, decodeJpeg);
  return 0;
}
