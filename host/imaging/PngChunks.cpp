#include "host/imaging/PngChunks.h"

#include "host/imaging/BigEndian.h"
#include "host/imaging/IccProfile.h"
#include "host/imaging/PngFormat.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

#include <libdeflate.h>

namespace vitrelle::host {

namespace {

/// The profile behind the name of an iCCP chunk; empty when it is not sound.
Data readIccChunk(std::span<const std::uint8_t> data) {
  constexpr std::size_t longestName = 79;
  const auto searched = data.first(std::min(data.size(), longestName + 1));
  const auto nameEnd = std::ranges::find(searched, 0);
  const auto compressedAt = static_cast<std::size_t>(nameEnd - searched.begin()) + 2;
  if (nameEnd == searched.end() || compressedAt >= data.size()) return {};
  const auto compressed = data.subspan(compressedAt);

  // A profile begins with its size; the stream tells no better before it is inflated.
  const auto inflate = [&](std::span<std::uint8_t> out, std::size_t& size) {
    libdeflate_decompressor* decompressor = libdeflate_alloc_decompressor();
    if (decompressor == nullptr) return LIBDEFLATE_BAD_DATA;
    const libdeflate_result result = libdeflate_zlib_decompress(
        decompressor, compressed.data(), compressed.size(), out.data(), out.size(), &size);
    libdeflate_free_decompressor(decompressor);
    return result;
  };
  for (std::size_t room = std::size_t{16} << 10; room <= largestIccProfile; room *= 16) {
    Data profile(room);
    std::size_t size = 0;
    const libdeflate_result result = inflate(profile, size);
    if (result == LIBDEFLATE_INSUFFICIENT_SPACE) continue;
    profile.resize(size);
    return result == LIBDEFLATE_SUCCESS && isIccProfile(profile) ? profile : Data();
  }
  return {};
}

void readIcc(std::span<const std::uint8_t> data, ColourProfile& profile) {
  profile.icc = readIccChunk(data);
}

void readIntent(std::span<const std::uint8_t> data, ColourProfile& profile) {
  if (data.size() == 1 && data[0] <= 3) profile.srgbIntent = data[0];
}

void readGamma(std::span<const std::uint8_t> data, ColourProfile& profile) {
  if (data.size() == 4 && readBigEndian32(data.data()) != 0) {
    profile.gamma = readBigEndian32(data.data());
  }
}

void readChromaticities(std::span<const std::uint8_t> data, ColourProfile& profile) {
  if (data.size() != 32) return;
  auto& values = profile.chromaticities.emplace();
  for (std::size_t i = 0; i < 8; ++i)
    values[i] = readBigEndian32(data.data() + 4 * i);
}

void readCicp(std::span<const std::uint8_t> data, ColourProfile& profile) {
  if (data.size() == 4) profile.cicp = {data[0], data[1], data[2], data[3]};
}

struct ColourChunkType {
  std::uint32_t type;
  void (*read)(std::span<const std::uint8_t>, ColourProfile&);
};

constexpr ColourChunkType colourChunkTypes[] = {{png::iCCP, readIcc},
                                                {png::sRGB, readIntent},
                                                {png::gAMA, readGamma},
                                                {png::cHRM, readChromaticities},
                                                {png::cICP, readCicp}};

} // namespace

PngChunks::PngChunks(std::span<const std::uint8_t> file)
    : rest_(file.subspan(std::min(file.size(), std::size(png::signature)))) {}

std::optional<PngChunk> PngChunks::next() {
  constexpr std::size_t frame = 12; // length, type, checksum
  if (rest_.size() < frame) return std::nullopt;
  const std::size_t length = readBigEndian32(rest_.data());
  if (length > rest_.size() - frame) return std::nullopt;
  const PngChunk chunk{.type = readBigEndian32(rest_.data() + 4),
                       .data = rest_.subspan(8, length),
                       .checksum = readBigEndian32(rest_.data() + 8 + length)};
  rest_ = rest_.subspan(frame + length);
  return chunk;
}

bool isIntact(const PngChunk& chunk) {
#ifdef FUZZING_BUILD_MODE_UNSAFE_FOR_PRODUCTION
  return true;
#endif
  // The type stands before the data and is covered too.
  return libdeflate_crc32(0, chunk.data.data() - 4, chunk.data.size() + 4) == chunk.checksum;
}

std::span<const std::uint8_t> bytesOf(const PngChunk& chunk) {
  return {chunk.data.data() - 8, chunk.data.size() + 12};
}

void ColourChunks::take(const PngChunk& chunk) {
  const auto kind = std::ranges::find(colourChunkTypes, chunk.type, &ColourChunkType::type);
  if (kind == std::end(colourChunkTypes) || std::ranges::count(taken_, chunk.type) != 0 ||
      !isIntact(chunk)) {
    return;
  }
  taken_.push_back(chunk.type);
  kind->read(chunk.data, profile_);
}

} // namespace vitrelle::host
