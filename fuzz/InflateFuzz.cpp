// Any bytes as a deflate stream: what our inflater takes, another takes too, and they agree on
// every byte. The first two bytes tell the size that is asked for.

#include "host/imaging/Inflate.h"
#include "host/imaging/PixelBuffer.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

#include <libdeflate.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace vitrelle::host;
  if (size < 2) return 0;
  const std::size_t asked = data[0] * std::size_t{256} + data[1];
  std::vector<std::uint8_t> stream = {0x78, 0x01};
  stream.insert(stream.end(), data + 2, data + size);
  stream.insert(stream.end(), 4, 0); // a checksum, which builds for fuzzing do not look at

  // Memory of its own size, so that the sanitizer sees what goes beyond the slack.
  std::vector<std::uint8_t> ours(asked + pixelBufferSlack);
  if (!inflateZlib(stream, ours.data(), asked)) return 0;
  std::vector<std::uint8_t> theirs(asked);
  libdeflate_decompressor* decompressor = libdeflate_alloc_decompressor();
  const libdeflate_result result = libdeflate_deflate_decompress(
      decompressor, stream.data() + 2, stream.size() - 2, theirs.data(), asked, nullptr);
  libdeflate_free_decompressor(decompressor);
  if (result != LIBDEFLATE_SUCCESS || !std::equal(theirs.begin(), theirs.end(), ours.begin())) {
    std::abort();
  }
  return 0;
}
