#include "host/imaging/HuffmanCode.h"
#include "host/imaging/PictureDeflate.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <utility>

#include <libdeflate.h>

namespace vitrelle::host {
namespace {

using Bytes = std::vector<std::uint8_t>;

/// Bytes in which runs, repeats of many distances and noise take turns.
Bytes mixture(std::mt19937& random, std::size_t size) {
  Bytes bytes;
  while (bytes.size() < size) {
    const std::size_t length = std::min<std::size_t>(1 + random() % 700, size - bytes.size());
    const auto kind = random() % 4;
    const std::size_t back = bytes.empty() ? 0 : 1 + random() % bytes.size();
    for (std::size_t i = 0; i < length; ++i) {
      const std::uint8_t run = bytes.empty() ? 0 : bytes.back();
      const auto noise = static_cast<std::uint8_t>(random() % (kind == 3 ? 4 : 256));
      bytes.push_back(kind == 0 ? run : kind == 1 && back > 0 ? bytes[bytes.size() - back] : noise);
    }
  }
  return bytes;
}

Bytes deflated(const Bytes& bytes, std::size_t blockSize) {
  PictureDeflate deflate;
  Bytes out(PictureDeflate::bound(bytes.size(), bytes.size() / blockSize + 1, blockSize));
  deflate.start(out.data());
  for (std::size_t at = 0; at < bytes.size(); at += blockSize) {
    const std::size_t size = std::min(blockSize, bytes.size() - at);
    deflate.block(std::span(bytes).subspan(at, size), at + size == bytes.size(),
                  std::min(at, PictureDeflate::window));
  }
  out.resize(static_cast<std::size_t>(deflate.end() - out.data()));
  return out;
}

TEST(PictureDeflate, everyStream_inflatesToWhatWentIn) {
  std::mt19937 random(5);
  libdeflate_decompressor* inflate = libdeflate_alloc_decompressor();
  for (int round = 0; round < 300; ++round) {
    const std::size_t size = 1 + random() % (round % 10 == 0 ? 400'000 : 3000);
    const std::size_t blockSize = 1 + random() % (round % 3 == 0 ? 200'000 : 2000);
    const Bytes bytes = mixture(random, size);
    const Bytes stream = deflated(bytes, blockSize);
    Bytes back(size);
    const auto result = libdeflate_deflate_decompress(inflate, stream.data(), stream.size(),
                                                      back.data(), size, nullptr);
    ASSERT_EQ(result, LIBDEFLATE_SUCCESS) << "round " << round << ", " << size << " bytes";
    ASSERT_EQ(back, bytes) << "round " << round;
  }
  libdeflate_free_decompressor(inflate);
}

TEST(HuffmanCode, lengths_makeACompleteCodeWithinTheLimit) {
  std::mt19937 random(2);
  for (int round = 0; round < 200; ++round) {
    std::vector<std::uint32_t> counts(2 + random() % 285);
    // Counts that grow like Fibonacci's numbers ask for the longest codes.
    std::uint32_t a = 1;
    std::uint32_t b = 1;
    for (std::uint32_t& count : counts) {
      count = round % 2 == 0 ? static_cast<std::uint32_t>(random() % 1000)
                             : std::exchange(a, std::exchange(b, a + b));
    }
    counts.front() = counts.back() = 1;
    std::vector<std::uint8_t> lengths(counts.size());
    huffmanLengths(counts, 14, lengths);
    std::uint32_t used = 0;
    for (std::size_t i = 0; i < counts.size(); ++i) {
      ASSERT_EQ(lengths[i] == 0, counts[i] == 0) << i;
      ASSERT_LE(lengths[i], 14);
      if (lengths[i] != 0) used += 1U << (14 - lengths[i]);
    }
    EXPECT_EQ(used, 1U << 14) << "round " << round;
  }
}

} // namespace
} // namespace vitrelle::host
