// A deflate made for filtered pictures. After a PNG filter there is little left for a search of
// earlier strings to find, so it knows literals and runs of one byte only, and spends its time on
// good prefix codes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace vitrelle::host {

/// Writes one deflate stream (without the zlib wrapping), block by block. For one thread.
class LiteralDeflate final {
 public:
  /// The best size of a block: long enough to pay for its codes, short enough to stay in the cache
  /// and for the codes to fit.
  static constexpr std::size_t blockBytes = std::size_t{192} << 10;

  /// Bytes that a stream of this many bytes in this many blocks can take, with the room that the
  /// writer needs while it works.
  static std::size_t bound(std::size_t bytes, std::size_t blocks, std::size_t largestBlock);

  /// Starts a stream at `out`, which has room for `bound`.
  void start(std::uint8_t* out);
  void block(std::span<const std::uint8_t> bytes, bool last);
  /// The end of what was written; after the last block, the end of the stream.
  std::uint8_t* end() const { return out_; }

 private:
  /// A byte that repeats the one before it, `length` times.
  struct Run {
    std::size_t start;
    std::size_t length;
  };
  struct Code {
    std::uint16_t bits = 0;
    std::uint16_t length = 0;
  };

  void findRuns(std::span<const std::uint8_t> bytes);
  void makeCodes(std::span<const std::uint8_t> bytes);
  void writeHeader(bool last);
  void writeSymbols(std::span<const std::uint8_t> bytes);
  void writeLiterals(const std::uint8_t* bytes, std::size_t count);
  void writeRun(std::uint8_t byte, std::size_t length);
  void writeStored(std::span<const std::uint8_t> bytes, bool last);
  void put(std::uint64_t bits, unsigned count);
  void flush();

  std::uint8_t* out_ = nullptr;
  std::uint64_t bits_ = 0; ///< not yet written, the first lowest
  unsigned bitCount_ = 0;  ///< below 8 after `flush`
  std::vector<Run> runs_;
  std::vector<std::uint8_t> lengths_;
  std::vector<Code> codes_; ///< of literals 0 to 255, the end 256, run lengths from 257
};

} // namespace vitrelle::host
