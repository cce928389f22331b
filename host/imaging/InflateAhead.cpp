#include "host/imaging/InflateAhead.h"

#include "host/imaging/BitReader.h"
#include "host/imaging/Inflation.h"

#include <algorithm>
#include <cstring>
#include <system_error>

namespace vitrelle::host {

namespace {

using namespace inflate;

/// Streams of fewer bytes, or that shrank more, are soon inflated; and where rows repeat for ever,
/// it never gets known what they copy.
#ifdef FUZZING_BUILD_MODE_UNSAFE_FOR_PRODUCTION
constexpr std::size_t worthwhileBytes = 64;
#else
constexpr std::size_t worthwhileBytes = std::size_t{256} << 10;
#endif
constexpr std::size_t worthwhileShrinking = 6;
/// How many compressed bytes are looked through for a block's head; blocks of photographs take
/// some 20 KB.
constexpr std::size_t soughtBytes = std::size_t{256} << 10;
/// How many bytes may pass until all that repeats copy is known: 0.3 MB of a photograph, 1.2 MB of
/// a dithered gradient.
constexpr std::size_t openUnits = std::size_t{3} << 20;
/// The most that a block's head is looked at: 17 bits of counts and 19 lengths of 3.
constexpr std::size_t headBytes = 16;

std::uint64_t bitsAt(std::span<const std::uint8_t> bytes, std::size_t position) {
  std::uint64_t word = 0;
  std::memcpy(&word, bytes.data() + position / 8, 8);
  return word >> position % 8;
}

/// Whether a block with codes of its own, not the last, may begin here: one bit in some thousands
/// passes.
bool looksLikeBlock(std::span<const std::uint8_t> bytes, std::size_t position) {
  const std::uint64_t head = bitsAt(bytes, position);
  if ((head & 7) != 4 || (head >> 3 & 31) > 29 || (head >> 8 & 31) > 29) return false;
  const std::uint64_t itemCount = (head >> 13 & 15) + 4;
  std::uint64_t lengths = bitsAt(bytes, position + 17);
  unsigned taken = 0; // of the 128 shares that codes of up to 7 bits divide
  for (std::uint64_t i = 0; i < itemCount; ++i, lengths >>= 3)
    taken += (128U >> (lengths & 7)) & 127;
  return taken == 128;
}

/// As a unit: the byte at this place of the window before the first block.
constexpr std::uint16_t openUnit(std::size_t place) {
  return static_cast<std::uint16_t>(256 + place);
}

bool isOpen(std::uint16_t unit) {
  return unit > 255;
}

} // namespace

InflateAhead::InflateAhead(std::span<const std::uint8_t> deflated, std::size_t size)
    : deflated_(deflated), size_(size), firstSought_(deflated.size() * 5) {
  const bool worthwhile = deflated.size() >= std::max(worthwhileBytes, size / worthwhileShrinking);
  if (!worthwhile || std::thread::hardware_concurrency() < 2) return;
  try {
    thread_ = std::jthread([this](const std::stop_token& stop) { run(stop); });
  } catch (const std::system_error&) {
    // The system has no more threads; the first half goes on to the end.
  }
}

std::optional<InflateAhead::Rest> InflateAhead::reached(std::size_t position) {
  if (!thread_.joinable()) return std::nullopt;
  const std::size_t begin = begin_.load();
  if (position < begin && (begin != none || position < firstSought_)) return std::nullopt;
  if (position != begin) thread_.request_stop();
  thread_.join();
  if (position != begin || !whole_) return std::nullopt;
  return Rest{.size = open_.size() + bytes_.size(), .endPosition = end_};
}

bool InflateAhead::write(std::uint8_t* out, std::size_t before,
                         const std::function<void(std::size_t)>& onProgress) {
  if (before < windowSize) return false;
  const std::uint8_t* window = out - windowSize;
  out = std::ranges::transform(open_, out, [&](std::uint16_t unit) {
          return isOpen(unit) ? window[unit - openUnit(0)] : static_cast<std::uint8_t>(unit);
        }).out;
  onProgress(open_.size());
  constexpr std::size_t step = std::size_t{256} << 10;
  for (std::size_t done = 0; done < bytes_.size(); done += step) {
    const auto next = bytes_.subspan(done, std::min(step, bytes_.size() - done));
    out = std::ranges::copy(next, out).out;
    onProgress(open_.size() + done + next.size());
  }
  return true;
}

void InflateAhead::run(const std::stop_token& stop) {
  openMemory_ = allocatePixels((windowSize + openUnits) * sizeof(std::uint16_t));
  memory_ = allocatePixels(windowSize + size_);
  if (!openMemory_ || !memory_) return;
  auto* units = reinterpret_cast<std::uint16_t*>(openMemory_.get());
  for (std::size_t i = 0; i < windowSize; ++i)
    units[i] = openUnit(i);

  const std::size_t sought =
      std::min(firstSought_ + soughtBytes * 8, (deflated_.size() - headBytes) * 8);
  for (std::size_t position = firstSought_; position < sought; ++position) {
    if (!looksLikeBlock(deflated_, position)) continue;
    if (stop.stop_requested()) return;
    Inflation<std::uint16_t> inflation(BitReader(deflated_, position), units, units + windowSize,
                                       units + windowSize + openUnits);
    if (inflation.decodeNextBlock() != BlockEnd::more) continue;
    begin_ = position;
    whole_ = decodeRest(inflation, stop);
    return;
  }
}

bool InflateAhead::decodeRest(inflate::Inflation<std::uint16_t>& first,
                              const std::stop_token& stop) {
  const auto* units = reinterpret_cast<const std::uint16_t*>(openMemory_.get());
  BlockEnd state = BlockEnd::more;
  const auto decodeOn = [&](auto& inflation) {
    state = stop.stop_requested() ? BlockEnd::damaged : inflation.decodeNextBlock();
    end_ = inflation.in().position();
  };
  // Until a whole window is known, so that from there on bytes will do.
  while (state == BlockEnd::more &&
         std::ranges::any_of(first.out() - windowSize, first.out(), isOpen))
    decodeOn(first);
  open_ = {units + windowSize, first.out()};

  std::uint8_t* bytes = memory_.get();
  std::uint8_t* begin =
      std::ranges::transform(first.out() - windowSize, first.out(), bytes, [](std::uint16_t unit) {
        return static_cast<std::uint8_t>(unit);
      }).out;
  Inflation<std::uint8_t> rest(first.in(), bytes, begin, begin + size_);
  while (state == BlockEnd::more)
    decodeOn(rest);
  bytes_ = {begin, rest.out()};
  return state == BlockEnd::lastBlock;
}

} // namespace vitrelle::host
