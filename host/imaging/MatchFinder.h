// Finds what a filtered picture repeats: runs of one byte, fast, and where it is worth the time,
// strings that stood before.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace vitrelle::host {

/// Bytes from `start` in a block that repeat those `distance` before them. Any length.
struct Match {
  std::uint32_t start;
  std::uint32_t length;
  std::uint32_t distance;
};

/// Goes through one stream block by block. Its lists are in ascending order, without overlaps, and
/// last until the next call.
class MatchFinder final {
 public:
  /// How far back a repeat may reach.
  static constexpr std::size_t window = std::size_t{32} << 10;

  void startStream();
  void startBlock(std::span<const std::uint8_t> bytes);

  /// The block's runs of one byte, at distance 1.
  const std::vector<Match>& findRuns();

  /// After `findRuns`: runs and repeats, where those are shorter than literals, whose costs in bits
  /// `literalBits` tells (0: not known yet). `history` bytes of the stream stand before the block.
  const std::vector<Match>& findRepeats(std::size_t history,
                                        std::span<const std::uint8_t> literalBits);

 private:
  void dropCoveredRuns(std::size_t position);

  std::span<const std::uint8_t> bytes_;
  std::uint32_t position_ = 0; ///< of the block in the stream
  std::vector<Match> runs_;
  std::size_t nextRun_ = 0; ///< in `runs_`, the first that is not yet taken
  std::vector<Match> matches_;
  std::vector<std::uint32_t> lastSeen_; ///< by hash, position in the stream plus 1
};

} // namespace vitrelle::host
