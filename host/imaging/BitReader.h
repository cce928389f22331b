// A deflate stream as bits.
#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>

namespace vitrelle::host {

/// The bits of the stream, the first lowest. Behind the end there are zeros.
class BitReader final {
 public:
  explicit BitReader(std::span<const std::uint8_t> bytes, std::size_t position = 0)
      : start_(bytes.data()),
        next_(bytes.data() + position / 8),
        end_(bytes.data() + bytes.size()) {
    if (position % 8 == 0) return;
    refill();
    skip(position % 8);
  }

  /// At least 56 bits are then there.
  void refill() {
    if (end_ - next_ >= 8) [[likely]] {
      std::uint64_t word = 0;
      std::memcpy(&word, next_, 8);
      bits_ |= word << count_;
      next_ += (63 - count_) >> 3;
      count_ |= 56;
      return;
    }
    while (count_ <= 56) {
      if (next_ < end_) {
        bits_ |= std::uint64_t{*next_++} << count_;
      } else {
        ++borrowed_;
      }
      count_ += 8;
    }
  }

  std::uint64_t bits() const { return bits_; }
  /// Counts below 64.
  void skip(unsigned count) {
    bits_ >>= count & 63;
    count_ -= count;
  }
  std::uint32_t take(unsigned count) {
    const auto value = static_cast<std::uint32_t>(bits_ & ((std::uint64_t{1} << count) - 1));
    skip(count);
    return value;
  }

  /// Whether more was taken than the stream has.
  bool isExhausted() const { return borrowed_ > count_ / 8; }

  /// Counts the bits taken since the stream began.
  std::size_t position() const {
    return (static_cast<std::size_t>(next_ - start_) + borrowed_) * 8 - count_;
  }

  /// Gives the whole bytes that were not taken back, and goes on at a byte's border.
  std::span<const std::uint8_t> rest() {
    skip(count_ % 8);
    next_ -= count_ / 8 - std::min(count_ / 8, borrowed_);
    bits_ = 0;
    count_ = 0;
    return {next_, end_};
  }
  void advance(std::size_t bytes) { next_ += bytes; }

 private:
  static_assert(std::endian::native == std::endian::little, "refill takes the lowest byte first");

  const std::uint8_t* start_;
  const std::uint8_t* next_;
  const std::uint8_t* end_;
  std::uint64_t bits_ = 0;
  unsigned count_ = 0;
  unsigned borrowed_ = 0; ///< zero bytes that stand for those behind the end
};

} // namespace vitrelle::host
