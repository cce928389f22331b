// A second thread's guess at a deflate stream's second half. The thread enters the stream in the
// middle, where it takes for a block what looks like the head of one, and leaves what repeats
// copy from before that open. When the first half ends just where the second was begun, the guess
// was right, for a block means the same to whoever decodes it; otherwise it comes to nothing.
#pragma once

#include "host/imaging/PixelBuffer.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <thread>

namespace vitrelle::host {

namespace inflate {
template <class Unit>
class Inflation;
}

class InflateAhead final {
 public:
  /// Begins at once. The stream gives at most `size` bytes in all and stays where it is. Nothing is
  /// tried on one core, without memory, or with a stream that is soon inflated.
  InflateAhead(std::span<const std::uint8_t> deflated, std::size_t size);

  /// What comes from the block at this bit of the stream to its end.
  struct Rest {
    std::size_t size;
    std::size_t endPosition; ///< in bits, behind the last block
  };

  /// Tells where the first half has come to, in bits; blocks end there. Nothing unless the second
  /// half begins there: then waits for its end. Gives up when the first half is beyond.
  std::optional<Rest> reached(std::size_t position);

  /// Writes the second half to `out`, whose preceding `before` bytes are the first half. Tells as
  /// it goes how much it wrote. False when a repeat reaches back too far.
  bool write(std::uint8_t* out, std::size_t before,
             const std::function<void(std::size_t)>& onProgress);

 private:
  void run(const std::stop_token& stop);
  bool decodeRest(inflate::Inflation<std::uint16_t>& first, const std::stop_token& stop);

  static constexpr std::size_t none = ~std::size_t{0};

  std::span<const std::uint8_t> deflated_;
  std::size_t size_;
  std::size_t firstSought_;              ///< bit from which a block is sought
  std::atomic<std::size_t> begin_{none}; ///< bit of the first block; none while it is sought
  std::size_t end_ = 0;                  ///< bit behind the last block
  bool whole_ = false;
  std::shared_ptr<std::uint8_t> openMemory_, memory_;
  std::span<const std::uint16_t> open_; ///< bytes; above 255, places in the window before them
  std::span<const std::uint8_t> bytes_; ///< what follows
  std::jthread thread_;                 ///< last, for it uses the others
};

} // namespace vitrelle::host
