#include "host/imaging/Inflate.h"

#include "host/imaging/BigEndian.h"
#include "host/imaging/InflateAhead.h"
#include "host/imaging/Inflation.h"

#include <libdeflate.h>

namespace vitrelle::host {

namespace {

using namespace inflate;

/// Bytes that are summed at a time: blocks may be tiny, and what is summed still in the cache.
constexpr std::size_t summedStep = std::size_t{64} << 10;
/// Bytes between two tellings: each wakes a thread that would push others off their cores.
constexpr std::size_t toldStep = std::size_t{2} << 20;

/// The checksum of the output and how much of it there is, told as it comes.
class Progress final {
 public:
  Progress(const std::uint8_t* start, const std::function<void(std::size_t)>& onProgress)
      : start_(start), onProgress_(onProgress) {}

  /// Summed first, for whoever is told of bytes may change them.
  void advance(std::size_t size) {
    checksum_ = libdeflate_adler32(checksum_, start_ + summed_, size - summed_);
    summed_ = size;
    if (summed_ - told_ >= toldStep) finish();
  }
  void finish() {
    told_ = summed_;
    onProgress_(told_);
  }
  std::size_t size() const { return summed_; }
  std::uint32_t checksum() const { return checksum_; }

 private:
  const std::uint8_t* start_;
  const std::function<void(std::size_t)>& onProgress_;
  std::size_t summed_ = 0;
  std::size_t told_ = 0;
  std::uint32_t checksum_ = 1;
};

bool isFollowedBy([[maybe_unused]] std::uint32_t checksum, std::span<const std::uint8_t> stream,
                  std::size_t position) {
  const std::size_t byte = (position + 7) / 8;
  if (stream.size() < 4 || byte > stream.size() - 4) return false;
#ifdef FUZZING_BUILD_MODE_UNSAFE_FOR_PRODUCTION
  return true;
#else
  return readBigEndian32(stream.data() + byte) == checksum;
#endif
}

bool inflateBlocks(std::span<const std::uint8_t> deflated, std::uint8_t* out, std::size_t size,
                   const std::function<void(std::size_t)>& onProgress) {
  InflateAhead ahead(deflated, size);
  Progress progress(out, onProgress);
  Inflation<std::uint8_t> inflation(BitReader(deflated), out, out, out + size);
  while (true) {
    const BlockEnd end = inflation.decodeNextBlock();
    if (end == BlockEnd::damaged) return false;
    const auto done = static_cast<std::size_t>(inflation.out() - out);
    const std::size_t position = inflation.in().position();
    if (done - progress.size() >= summedStep || end == BlockEnd::lastBlock) progress.advance(done);
    if (end == BlockEnd::lastBlock) {
      progress.finish();
      return done == size && isFollowedBy(progress.checksum(), deflated, position);
    }
    if (const auto rest = ahead.reached(position)) {
      if (rest->size != size - done || !ahead.write(inflation.out(), done, [&](std::size_t more) {
            progress.advance(done + more);
          })) {
        return false;
      }
      progress.finish();
      return isFollowedBy(progress.checksum(), deflated, rest->endPosition);
    }
  }
}

} // namespace

bool inflateZlib(std::span<const std::uint8_t> stream, std::uint8_t* out, std::size_t size,
                 const std::function<void(std::size_t)>& onProgress) {
  // Method deflate, a window of 32 KiB at most, no preset dictionary, a header divisible by 31.
  if (stream.size() < 6 || (stream[0] & 15) != 8 || stream[0] >> 4 > 7 || (stream[1] & 32) != 0 ||
      (stream[0] * 256 + stream[1]) % 31 != 0) {
    return false;
  }
  return inflateBlocks(stream.subspan(2), out, size, onProgress);
}

} // namespace vitrelle::host
