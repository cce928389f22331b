// The chunks of a PNG file.
#pragma once

#include "core/platform/ColourProfile.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace vitrelle::host {

struct PngChunk {
  std::uint32_t type = 0;
  std::span<const std::uint8_t> data;
  std::uint32_t checksum = 0; ///< as the file has it
};

/// Whether the checksum is right.
bool isIntact(const PngChunk& chunk);

/// The chunk as it stands in the file, with its length, type and checksum.
std::span<const std::uint8_t> bytesOf(const PngChunk& chunk);

/// Walks through the chunks of a file.
class PngChunks final {
 public:
  explicit PngChunks(std::span<const std::uint8_t> file);
  /// The next chunk that is wholly there; nothing at the end of the file.
  std::optional<PngChunk> next();

 private:
  std::span<const std::uint8_t> rest_;
};

/// What the chunks before the pixels say about colours. Of several of one type the first counts, so
/// that one profile at most is inflated.
class ColourChunks final {
 public:
  /// Passes over chunks of other types and damaged ones.
  void take(const PngChunk& chunk);
  const ColourProfile& profile() const { return profile_; }

 private:
  ColourProfile profile_;
  std::vector<std::uint32_t> taken_; ///< types
};

} // namespace vitrelle::host
