#include "host/imaging/MatchFinder.h"

#include "host/imaging/DeflateSymbols.h"

#include <algorithm>
#include <bit>
#include <cstring>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace vitrelle::host {

namespace {

/// Shorter runs cost more as a match than as literals of a good code.
constexpr std::size_t shortestRun = 12;
/// Repeats are looked for by this many bytes.
constexpr std::size_t shortestRepeat = 6;
/// A repeat ends where a run of this length begins: the run is shorter to tell.
constexpr std::size_t runThatEndsRepeats = 32;
/// Of a match's two symbols, without the distance's extra bits.
constexpr std::size_t typicalMatchBits = 12;
/// Of a byte that the code of the runs' literals did not know.
constexpr std::size_t unknownLiteralBits = 14;

std::uint64_t load64(const std::uint8_t* bytes) {
  std::uint64_t word = 0;
  std::memcpy(&word, bytes, 8);
  return word;
}

constexpr unsigned hashBits = 14;
std::size_t hashOfRepeat(std::uint64_t word) {
  return (word << (64 - 8 * shortestRepeat)) * 0x9E3779B97F4A7C15 >> (64 - hashBits);
}

/// How many bytes are the same, up to `most`. Both are followed by at least 8 more.
std::size_t sameBytes(const std::uint8_t* left, const std::uint8_t* right, std::size_t most) {
  std::size_t same = 0;
  while (same + 8 <= most) {
    const std::uint64_t difference = load64(left + same) ^ load64(right + same);
    if (difference != 0) return same + static_cast<std::size_t>(std::countr_zero(difference)) / 8;
    same += 8;
  }
  while (same < most && left[same] == right[same])
    ++same;
  return same;
}

/// Bit i tells whether bytes[i] equals the byte before it, for 64 bytes.
std::uint64_t repeats(const std::uint8_t* bytes) {
#if defined(__SSE2__)
  std::uint64_t mask = 0;
  for (unsigned part = 0; part < 4; ++part) {
    const auto* at = reinterpret_cast<const __m128i*>(bytes + 16 * part);
    const auto* before = reinterpret_cast<const __m128i*>(bytes + 16 * part - 1);
    const __m128i equal = _mm_cmpeq_epi8(_mm_loadu_si128(at), _mm_loadu_si128(before));
    mask |= static_cast<std::uint64_t>(static_cast<std::uint32_t>(_mm_movemask_epi8(equal)))
            << (16 * part);
  }
  return mask;
#else
  std::uint64_t mask = 0;
  for (unsigned i = 0; i < 64; ++i)
    mask |= std::uint64_t{bytes[i] == *(bytes + i - 1)} << i;
  return mask;
#endif
}

std::size_t runEnd(std::span<const std::uint8_t> bytes, std::size_t position) {
  const std::uint8_t byte = bytes[position];
  while (position + 65 <= bytes.size()) {
    const std::uint64_t mask = repeats(bytes.data() + position + 1);
    if (~mask != 0) return position + 1 + static_cast<std::size_t>(std::countr_one(mask));
    position += 64;
  }
  ++position;
  while (position < bytes.size() && bytes[position] == byte)
    ++position;
  return position;
}

/// Whether these bytes cost more than `bits` as literals.
bool costsMore(std::span<const std::uint8_t> bytes, std::span<const std::uint8_t> literalBits,
               std::size_t bits) {
  std::size_t cost = 0;
  for (std::size_t i = 0; i < bytes.size() && cost <= bits; ++i) {
    const std::size_t known = literalBits[bytes[i]];
    cost += known == 0 ? unknownLiteralBits : known;
  }
  return cost > bits;
}

} // namespace

void MatchFinder::startStream() {
  bytes_ = {};
  position_ = 0;
  lastSeen_.clear();
}

void MatchFinder::startBlock(std::span<const std::uint8_t> bytes) {
  position_ += static_cast<std::uint32_t>(bytes_.size());
  bytes_ = bytes;
}

const std::vector<Match>& MatchFinder::findRuns() {
  const auto bytes = bytes_;
  runs_.clear();
  const std::size_t size = bytes.size();
  // A run of 12 has 6 repeats in a row in one of the 64-byte windows that it touches.
  for (std::size_t position = 1; position + 64 <= size;) {
    const std::uint64_t mask = repeats(bytes.data() + position);
    std::uint64_t six = mask & mask >> 1;
    six &= six >> 2;
    six &= six >> 2; // bit i: repeats at i to i + 5
    std::size_t next = position + 64;
    while (six != 0) {
      std::size_t start = position + static_cast<std::size_t>(std::countr_zero(six));
      while (start > 1 && bytes[start - 1] == bytes[start - 2])
        --start;
      const std::size_t end = runEnd(bytes, start);
      if (end - start >= shortestRun) {
        runs_.push_back(
            {static_cast<std::uint32_t>(start), static_cast<std::uint32_t>(end - start), 1});
      }
      if (end >= next) {
        next = end;
        break;
      }
      six &= ~std::uint64_t{0} << (end - position);
    }
    position = next;
  }
  return runs_;
}

/// Of a run whose beginning lies before the position the rest stays, when it is long enough.
void MatchFinder::dropCoveredRuns(std::size_t position) {
  for (; nextRun_ < runs_.size() && runs_[nextRun_].start < position; ++nextRun_) {
    Match& run = runs_[nextRun_];
    const std::uint32_t end = run.start + run.length;
    if (end < position + shortestRun) continue;
    run.start = static_cast<std::uint32_t>(position);
    run.length = end - run.start;
    return;
  }
}

const std::vector<Match>& MatchFinder::findRepeats(std::size_t history,
                                                   std::span<const std::uint8_t> literalBits) {
  lastSeen_.resize(std::size_t{1} << hashBits);
  matches_.clear();
  nextRun_ = 0;
  const auto bytes = bytes_;
  const std::size_t size = bytes.size();
  std::size_t position = 0;
  while (position + 16 <= size) {
    if (nextRun_ < runs_.size() && runs_[nextRun_].start == position) {
      const Match& run = runs_[nextRun_++];
      matches_.push_back(run);
      position += run.length;
      continue;
    }
    const std::uint8_t* const here = bytes.data() + position;
    const std::uint64_t word = load64(here);
    const std::uint32_t inStream = position_ + static_cast<std::uint32_t>(position);
    std::uint32_t& seen = lastSeen_[hashOfRepeat(word)];
    const std::uint32_t distance = inStream + 1 - seen;
    const bool reachable = seen != 0 && distance <= std::min(window, position + history);
    seen = inStream + 1;
    if (reachable && ((load64(here - distance) ^ word) << (64 - 8 * shortestRepeat)) == 0) {
      const bool longRun = nextRun_ < runs_.size() && runs_[nextRun_].length >= runThatEndsRepeats;
      const std::size_t end = longRun ? runs_[nextRun_].start : size - 8;
      const std::size_t length = sameBytes(here, here - distance, end - position);
      const std::size_t cost = typicalMatchBits + distanceSymbol(distance).extraBits;
      if (length >= shortestMatch &&
          costsMore(bytes.subspan(position, length), literalBits, cost)) {
        matches_.push_back(
            {static_cast<std::uint32_t>(position), static_cast<std::uint32_t>(length), distance});
        // What the match covers can be repeated too.
        const std::size_t matchEnd = position + length;
        for (++position; position < matchEnd; ++position) {
          lastSeen_[hashOfRepeat(load64(bytes.data() + position))] =
              position_ + static_cast<std::uint32_t>(position) + 1;
        }
        dropCoveredRuns(position);
        continue;
      }
    }
    ++position;
  }
  dropCoveredRuns(position);
  matches_.insert(matches_.end(), runs_.begin() + static_cast<std::ptrdiff_t>(nextRun_),
                  runs_.end());
  return matches_;
}

} // namespace vitrelle::host
