// The chunks of a PNG file.
#pragma once

#include "core/platform/ColourProfile.h"

#include <cstdint>
#include <optional>
#include <span>

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

/// Takes over what the chunk says about colours, if it is one that does and if it is sound.
void readColourChunk(const PngChunk& chunk, ColourProfile& profile);

} // namespace vitrelle::host
