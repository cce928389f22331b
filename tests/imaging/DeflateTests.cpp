#include "host/imaging/HuffmanCode.h"
#include "host/imaging/Inflate.h"
#include "host/imaging/PictureDeflate.h"
#include "host/imaging/PixelBuffer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
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

Bytes zlibStream(const Bytes& bytes, int level) {
  libdeflate_compressor* compressor = libdeflate_alloc_compressor(level);
  Bytes stream(libdeflate_zlib_compress_bound(compressor, bytes.size()));
  stream.resize(libdeflate_zlib_compress(compressor, bytes.data(), bytes.size(), stream.data(),
                                         stream.size()));
  libdeflate_free_compressor(compressor);
  return stream;
}

TEST(Inflate, streamsOfAnotherCompressor_comeOutWhole) {
  std::mt19937 random(8);
  for (int round = 0; round < 200; ++round) {
    const Bytes bytes = mixture(random, 1 + random() % (round % 10 == 0 ? 300'000 : 2000));
    for (const int level : {0, 1, 6, 12}) {
      Bytes back(bytes.size() + pixelBufferSlack);
      std::size_t told = 0;
      ASSERT_TRUE(inflateZlib(zlibStream(bytes, level), back.data(), bytes.size(),
                              [&](std::size_t ready) { told = ready; }))
          << "level " << level << ", " << bytes.size() << " bytes";
      EXPECT_EQ(told, bytes.size());
      ASSERT_TRUE(std::equal(bytes.begin(), bytes.end(), back.begin())) << "level " << level;
    }
  }
}

TEST(Inflate, largeStreams_comeOutWholeOrAreRefused) {
  // So large that their second half is inflated beside the first.
  std::mt19937 random(6);
  const Bytes bytes = mixture(random, 3'000'000);
  Bytes back(bytes.size() + pixelBufferSlack);
  for (const int level : {1, 6, 9}) {
    Bytes stream = zlibStream(bytes, level);
    ASSERT_GT(stream.size(), 1'000'000U);
    std::size_t told = 0;
    ASSERT_TRUE(inflateZlib(stream, back.data(), bytes.size(), [&](std::size_t ready) {
      EXPECT_GE(ready, told);
      told = ready;
    })) << level;
    EXPECT_EQ(told, bytes.size());
    EXPECT_TRUE(std::equal(bytes.begin(), bytes.end(), back.begin())) << level;
    EXPECT_FALSE(inflateZlib(stream, back.data(), bytes.size() - 1));
    EXPECT_FALSE(inflateZlib(stream, back.data(), bytes.size() + 1));
    EXPECT_FALSE(
        inflateZlib(std::span(stream).first(stream.size() - 4), back.data(), bytes.size()));
    for (int round = 0; round < 40; ++round) {
      const std::size_t at = random() % stream.size();
      stream[at] ^= 16;
      EXPECT_FALSE(inflateZlib(stream, back.data(), bytes.size())) << at;
      stream[at] ^= 16;
    }
  }
}

TEST(Inflate, damagedShortOrOtherSized_isRefused) {
  std::mt19937 random(4);
  const Bytes bytes = mixture(random, 5000);
  const Bytes stream = zlibStream(bytes, 6);
  Bytes back(bytes.size() + 1 + pixelBufferSlack);
  EXPECT_FALSE(inflateZlib(stream, back.data(), bytes.size() - 1));
  EXPECT_FALSE(inflateZlib(stream, back.data(), bytes.size() + 1));
  for (std::size_t length = 0; length < stream.size(); ++length) {
    EXPECT_FALSE(inflateZlib(std::span(stream).first(length), back.data(), bytes.size())) << length;
  }
  for (int round = 0; round < 20'000; ++round) {
    Bytes damaged = stream;
    damaged[random() % damaged.size()] ^= static_cast<std::uint8_t>(1U << random() % 8);
    if (!inflateZlib(damaged, back.data(), bytes.size())) continue;
    EXPECT_TRUE(std::equal(bytes.begin(), bytes.end(), back.begin())) << "round " << round;
  }
}

TEST(Inflate, codesThatDeflateForbids_areRefused) {
  // Bits from the lowest, as a stream has them: a last block with codes of its own whose only
  // distance code is of so many bits; literals 0 and 256 have one bit each.
  const auto stream = [](unsigned distanceBits) {
    std::vector<bool> bits;
    const auto put = [&](unsigned value, unsigned count) {
      for (unsigned i = 0; i < count; ++i)
        bits.push_back((value >> i & 1) != 0);
    };
    put(1, 1), put(2, 2), put(0, 5), put(0, 5), put(14, 4);
    // Lengths of the lengths' codes in their order: 18 takes one bit, 1 and the distance's two.
    const unsigned order[] = {16, 17, 18, 0, 8, 7, 9, 6, 10, 5, 11, 4, 12, 3, 13, 2, 14, 1};
    for (const unsigned item : order)
      put(item == 18                                                 ? 1
          : item == 1 || (distanceBits != 1 && item == distanceBits) ? 2
          : item == 0 && distanceBits == 1                           ? 2
                                                                     : 0,
          3);
    // Canonical: 18 is 0; of the two others the smaller is 10, the larger 11, the first bit first.
    const unsigned other = distanceBits == 1 ? 0 : distanceBits;
    const auto item = [&](unsigned value) {
      if (value == 18) return put(0, 1);
      put(1, 1);
      put(value == std::max(1U, other) ? 1 : 0, 1);
    };
    item(1), item(18), put(138 - 11, 7), item(18), put(117 - 11, 7), item(1), item(distanceBits);
    put(1, 1); // the end of the block
    Bytes bytes = {0x78, 0x01};
    for (std::size_t i = 0; i < bits.size(); ++i) {
      if (i % 8 == 0) bytes.push_back(0);
      if (bits[i]) bytes.back() |= static_cast<std::uint8_t>(1U << i % 8);
    }
    for (const std::uint8_t byte : Bytes{0, 0, 0, 1}) // the checksum of nothing
      bytes.push_back(byte);
    return bytes;
  };
  Bytes nothing(pixelBufferSlack);
  EXPECT_TRUE(inflateZlib(stream(1), nothing.data(), 0));
  for (const unsigned bits : {2U, 3U, 9U})
    EXPECT_FALSE(inflateZlib(stream(bits), nothing.data(), 0)) << bits;
  Bytes window = stream(1);
  window[0] = 0x88;
  window[1] = 0x1C; // divisible by 31 together
  EXPECT_FALSE(inflateZlib(window, nothing.data(), 0));
}

} // namespace
} // namespace vitrelle::host
