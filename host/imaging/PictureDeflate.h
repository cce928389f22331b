// A deflate made for filtered pictures. After a PNG filter there is mostly little left for a search
// of earlier strings to find, so it first takes runs of one byte and good prefix codes, which is
// fast; only where runs leave few bytes over, in flat art and text, does it search for repeats.
#pragma once

#include "host/imaging/DeflateSymbols.h"
#include "host/imaging/MatchFinder.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace vitrelle::host {

/// Writes one deflate stream (without the zlib wrapping), block by block. For one thread.
class PictureDeflate final {
 public:
  /// The best size of a block: long enough to pay for its codes, short enough to stay in the cache
  /// and for the codes to fit.
  static constexpr std::size_t blockBytes = std::size_t{192} << 10;
  /// How far back a repeat may reach.
  static constexpr std::size_t window = MatchFinder::window;

  /// Bytes that a stream of this many bytes in this many blocks can take, with the room that the
  /// writer needs while it works.
  static std::size_t bound(std::size_t bytes, std::size_t blocks, std::size_t largestBlock);

  /// Starts a stream at `out`, which has room for `bound`.
  void start(std::uint8_t* out);
  /// `history` bytes of the stream's earlier blocks stand before `bytes` in memory, for repeats to
  /// refer to.
  void block(std::span<const std::uint8_t> bytes, bool last, std::size_t history = 0);
  /// The end of what was written; after the last block, the end of the stream.
  std::uint8_t* end() const { return out_; }

 private:
  struct Code {
    std::uint16_t bits = 0;
    std::uint16_t length = 0;
  };

  bool worthSearching(std::size_t bytes) const;
  void makeCodes(std::span<const std::uint8_t> bytes);
  void writeHeader(bool last);
  void writeSymbols(std::span<const std::uint8_t> bytes);
  void writeLiterals(const std::uint8_t* bytes, std::size_t count);
  void writeMatch(std::span<const std::uint8_t> bytes, const Match& match);
  void writeStored(std::span<const std::uint8_t> bytes, bool last);
  void put(std::uint64_t bits, unsigned count);
  void flush();

  std::uint8_t* out_ = nullptr;
  std::uint64_t bits_ = 0; ///< not yet written, the first lowest
  unsigned bitCount_ = 0;  ///< below 8 after `flush`
  MatchFinder finder_;
  std::span<const Match> matches_; ///< the finder's
  std::size_t literals_ = 0;       ///< bytes that `matches_` leave over
  std::uint64_t literalBits_ = 0;  ///< what those cost, about, in the present code
  std::array<std::uint8_t, literalSymbolCount> literalLengths_{};
  std::array<std::uint8_t, distanceSymbolCount> distanceLengths_{};
  std::array<Code, literalSymbolCount> literalCodes_{};
  std::array<Code, distanceSymbolCount> distanceCodes_{};
};

} // namespace vitrelle::host
