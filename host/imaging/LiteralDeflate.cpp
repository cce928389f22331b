#include "host/imaging/LiteralDeflate.h"

#include "host/imaging/HuffmanCode.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace vitrelle::host {

namespace {

constexpr std::size_t endOfBlock = 256;
constexpr std::size_t firstLengthSymbol = 257;
constexpr std::size_t longestLengthSymbol = 285;
constexpr std::size_t shortestMatch = 3;
constexpr std::size_t longestMatch = 258;
/// Shorter runs cost more as a match than as literals of a good code.
constexpr std::size_t shortestRun = 12;
/// Repeats are looked for by this many bytes.
constexpr std::size_t shortestRepeat = 6;
/// A repeat ends where a run of this length begins: the run is shorter to tell.
constexpr std::size_t runThatEndsRepeats = 32;
/// Of a match's two symbols, without the distance's extra bits.
constexpr std::size_t typicalMatchBits = 12;
/// Four codes and the 7 bits that a flush may leave fit 64 bits.
constexpr int longestCode = 14;

/// A match length's or distance's symbol, with the bits that tell it from the symbol's others.
struct Symbol {
  std::uint16_t number = 0;
  std::uint8_t extraBits = 0;
  std::uint16_t base = 0;
};

/// Of each match length from 3 to 258.
constexpr std::array<Symbol, longestMatch + 1> makeLengthSymbols() {
  std::array<Symbol, longestMatch + 1> table{};
  std::size_t length = shortestMatch;
  for (std::size_t number = firstLengthSymbol; number < longestLengthSymbol; ++number) {
    const std::size_t step = number - firstLengthSymbol;
    const std::size_t extra = step < 8 ? 0 : step / 4 - 1;
    const std::size_t base = length;
    for (; length < base + (std::size_t{1} << extra) && length < longestMatch; ++length) {
      table[length] = {static_cast<std::uint16_t>(number), static_cast<std::uint8_t>(extra),
                       static_cast<std::uint16_t>(base)};
    }
  }
  table[longestMatch] = {longestLengthSymbol, 0, longestMatch};
  return table;
}
constexpr auto lengthSymbols = makeLengthSymbols();

/// Beyond the first four, each power of two of distances has two symbols.
constexpr Symbol distanceSymbol(std::uint32_t distance) {
  const std::uint32_t index = distance - 1;
  if (index < 4)
    return {static_cast<std::uint16_t>(index), 0, static_cast<std::uint16_t>(distance)};
  const int extra = static_cast<int>(std::bit_width(index)) - 2;
  const std::uint32_t upper = index >> extra; // 2 or 3
  return {static_cast<std::uint16_t>(2 * static_cast<std::uint32_t>(extra) + upper),
          static_cast<std::uint8_t>(extra), static_cast<std::uint16_t>((upper << extra) + 1)};
}

/// Calls back with the length of each match that a longer one is told as, and with the bytes left
/// over at its end, which are too few for a match.
template <class OnMatch>
std::size_t splitMatch(std::size_t length, OnMatch onMatch) {
  for (; length >= longestMatch; length -= longestMatch)
    onMatch(longestMatch);
  if (length < shortestMatch) return length;
  onMatch(length);
  return 0;
}

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

} // namespace

std::size_t LiteralDeflate::bound(std::size_t bytes, std::size_t blocks, std::size_t largestBlock) {
  // What is kept is never more than stored; while it works, a block may run to its longest codes.
  const std::size_t stored = bytes + 5 * (bytes / 65535 + 2 * blocks + 1);
  return stored + largestBlock * longestCode / 8 + 1024;
}

void LiteralDeflate::start(std::uint8_t* out) {
  out_ = out;
  bits_ = 0;
  bitCount_ = 0;
  position_ = 0;
  lastSeen_.clear();
}

void LiteralDeflate::block(std::span<const std::uint8_t> bytes, bool last, std::size_t history) {
  std::uint8_t* const start = out_;
  const std::uint64_t bitsBefore = bits_;
  const unsigned bitCountBefore = bitCount_;

  findRuns(bytes);
  makeCodes(bytes);
  if (worthSearching(bytes.size())) {
    findRepeats(bytes, history);
    makeCodes(bytes);
  }
  writeHeader(last);
  writeSymbols(bytes);

  if (static_cast<std::size_t>(out_ - start) > bytes.size()) {
    out_ = start;
    bits_ = bitsBefore;
    bitCount_ = bitCountBefore;
    writeStored(bytes, last);
  }
  if (last && bitCount_ != 0) {
    put(0, 8 - bitCount_);
    flush();
  }
  position_ += static_cast<std::uint32_t>(bytes.size());
}

void LiteralDeflate::findRuns(std::span<const std::uint8_t> bytes) {
  matches_.clear();
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
        matches_.push_back(
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
}

/// Runs leave little of flat art and text, but that little is edges, dear as literals and often
/// the same. What they leave of smooth gradients is cheap, and in photographs nothing repeats.
bool LiteralDeflate::worthSearching(std::size_t bytes) const {
  constexpr std::uint64_t dearLiteralBits = 3;
  return literals_ <= bytes / 2 && literalBits_ > dearLiteralBits * literals_;
}

/// What these bytes cost as literals of the present code, counted no further than `most`.
std::size_t LiteralDeflate::bitsAsLiterals(std::span<const std::uint8_t> bytes,
                                           std::size_t most) const {
  std::size_t bits = 0;
  for (std::size_t i = 0; i < bytes.size() && bits <= most; ++i) {
    const std::uint8_t length = literalLengths_[bytes[i]];
    bits += length == 0 ? longestCode : length;
  }
  return bits;
}

void LiteralDeflate::findRepeats(std::span<const std::uint8_t> bytes, std::size_t history) {
  lastSeen_.resize(std::size_t{1} << hashBits);
  std::swap(runs_, matches_);
  matches_.clear();
  auto run = runs_.begin();
  const std::size_t size = bytes.size();
  std::size_t position = 0;
  const auto skipCoveredRuns = [&] {
    for (; run != runs_.end() && run->start < position; ++run) {
      const std::uint32_t end = run->start + run->length;
      if (end < position + shortestRun) continue; // what is left of it is too short
      run->start = static_cast<std::uint32_t>(position);
      run->length = end - run->start;
      return;
    }
  };
  while (position + 16 <= size) {
    if (run != runs_.end() && run->start == position) {
      matches_.push_back(*run);
      position += run->length;
      ++run;
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
      const bool longRun = run != runs_.end() && run->length >= runThatEndsRepeats;
      const std::size_t most = longRun ? run->start - position : size - 8 - position;
      const std::size_t length = sameBytes(here, here - distance, most);
      const std::size_t cost = typicalMatchBits + distanceSymbol(distance).extraBits;
      if (length >= shortestMatch && bitsAsLiterals(bytes.subspan(position, length), cost) > cost) {
        matches_.push_back(
            {static_cast<std::uint32_t>(position), static_cast<std::uint32_t>(length), distance});
        // What the match covers can be repeated too.
        const std::size_t end = position + length;
        for (++position; position < end; ++position) {
          lastSeen_[hashOfRepeat(load64(bytes.data() + position))] =
              position_ + static_cast<std::uint32_t>(position) + 1;
        }
        skipCoveredRuns();
        continue;
      }
    }
    ++position;
  }
  skipCoveredRuns();
  matches_.insert(matches_.end(), run, runs_.end());
}

void LiteralDeflate::makeCodes(std::span<const std::uint8_t> bytes) {
  std::array<std::uint32_t, literalSymbols> counts{};
  std::array<std::uint32_t, distanceSymbols> distanceCounts{};
  literals_ = bytes.size();
  for (const Match& match : matches_) {
    literals_ -= match.length;
    std::uint32_t& distance = distanceCounts[distanceSymbol(match.distance).number];
    const std::size_t left = splitMatch(match.length, [&](std::size_t length) {
      ++counts[lengthSymbols[length].number];
      ++distance;
    });
    for (std::size_t i = 0; i < left; ++i)
      ++counts[bytes[match.start + match.length - 1 - i]];
  }

  // Many literals are told well enough by every fourth; few are counted.
  const std::size_t step = literals_ > blockBytes / 8 ? 4 : 1;
  std::array<std::array<std::uint32_t, 256>, 4> tallies{}; // apart, so that equal bytes don't wait
  std::size_t position = 0;
  const auto tally = [&](std::size_t end) {
    for (; position + 3 * step < end; position += 4 * step) {
      for (std::size_t i = 0; i < 4; ++i)
        ++tallies[i][bytes[position + i * step]];
    }
    for (; position < end; position += step)
      ++tallies[0][bytes[position]];
  };
  for (const Match& match : matches_) {
    tally(match.start);
    position = match.start + match.length;
  }
  tally(bytes.size());
  for (std::size_t byte = 0; byte < 256; ++byte) {
    const std::uint32_t seen =
        tallies[0][byte] + tallies[1][byte] + tallies[2][byte] + tallies[3][byte];
    counts[byte] += seen * static_cast<std::uint32_t>(step);
    if (step > 1 && counts[byte] == 0) counts[byte] = 1; // it may stand between the samples
  }
  counts[endOfBlock] = 1;
  // A code has two symbols at least.
  distanceCounts[0] += 1;
  distanceCounts[1] += 1;

  const auto makeCode = [](const auto& symbolCounts, auto& lengths, auto& codes) {
    huffmanLengths(symbolCounts, longestCode, lengths);
    std::array<std::uint16_t, literalSymbols> bits{};
    canonicalCodes(lengths, bits);
    for (std::size_t i = 0; i < lengths.size(); ++i)
      codes[i] = {bits[i], lengths[i]};
  };
  makeCode(counts, literalLengths_, literalCodes_);
  makeCode(distanceCounts, distanceLengths_, distanceCodes_);
  literalBits_ = 0;
  for (std::size_t byte = 0; byte < 256; ++byte) {
    literalBits_ += std::uint64_t{counts[byte]} * literalLengths_[byte];
  }
}

void LiteralDeflate::writeHeader(bool last) {
  // The lengths of both codes, one after the other, without the zeros at their ends.
  const auto usedLengths = [](const auto& lengths) {
    std::size_t count = lengths.size();
    while (lengths[count - 1] == 0)
      --count;
    return std::span(lengths).first(count);
  };
  const auto literalPart = usedLengths(literalLengths_);
  const auto distancePart = usedLengths(distanceLengths_);
  std::vector<std::uint8_t> lengths(literalPart.begin(), literalPart.end());
  lengths.insert(lengths.end(), distancePart.begin(), distancePart.end());

  struct Item {
    std::uint8_t symbol, extra, extraBits;
  };
  std::vector<Item> items;
  for (std::size_t i = 0; i < lengths.size();) {
    std::size_t same = 1;
    while (i + same < lengths.size() && lengths[i + same] == lengths[i])
      ++same;
    i += same;
    const std::uint8_t length = lengths[i - 1];
    while (length == 0 && same >= 3) {
      const std::size_t taken = std::min<std::size_t>(same, 138);
      items.push_back(taken < 11 ? Item{17, static_cast<std::uint8_t>(taken - 3), 3}
                                 : Item{18, static_cast<std::uint8_t>(taken - 11), 7});
      same -= taken;
    }
    if (same == 0) continue;
    items.push_back({length, 0, 0});
    for (--same; same >= 3;) {
      const std::size_t taken = std::min<std::size_t>(same, 6);
      items.push_back({16, static_cast<std::uint8_t>(taken - 3), 2});
      same -= taken;
    }
    for (; same > 0; --same)
      items.push_back({length, 0, 0});
  }

  std::array<std::uint32_t, 19> counts{};
  for (const Item& item : items)
    ++counts[item.symbol];
  std::array<std::uint8_t, 19> itemLengths{};
  std::array<std::uint16_t, 19> itemCodes{};
  huffmanLengths(counts, 7, itemLengths);
  canonicalCodes(itemLengths, itemCodes);

  // The order in which deflate lists them, the often unused last.
  constexpr std::uint8_t order[] = {16, 17, 18, 0, 8,  7, 9,  6, 10, 5,
                                    11, 4,  12, 3, 13, 2, 14, 1, 15};
  std::size_t orderCount = 19;
  while (orderCount > 4 && itemLengths[order[orderCount - 1]] == 0)
    --orderCount;

  put(last ? 1 : 0, 1);
  put(2, 2); // dynamic codes
  put(literalPart.size() - 257, 5);
  put(distancePart.size() - 1, 5);
  put(orderCount - 4, 4);
  flush();
  for (std::size_t i = 0; i < orderCount; ++i) {
    put(itemLengths[order[i]], 3);
    flush();
  }
  for (const Item& item : items) {
    put(itemCodes[item.symbol], itemLengths[item.symbol]);
    put(item.extra, item.extraBits);
    flush();
  }
}

void LiteralDeflate::writeSymbols(std::span<const std::uint8_t> bytes) {
  std::size_t position = 0;
  for (const Match& match : matches_) {
    writeLiterals(bytes.data() + position, match.start - position);
    writeMatch(bytes, match);
    position = match.start + match.length;
  }
  writeLiterals(bytes.data() + position, bytes.size() - position);
  put(literalCodes_[endOfBlock].bits, literalCodes_[endOfBlock].length);
  flush();
}

void LiteralDeflate::writeLiterals(const std::uint8_t* bytes, std::size_t count) {
  // The state in locals: the compiler must assume that a store of bytes changes the members.
  const Code* const codes = literalCodes_.data();
  std::uint8_t* out = out_;
  std::uint64_t bits = bits_;
  unsigned bitCount = bitCount_;
  const auto flushLocal = [&] {
    std::memcpy(out, &bits, 8);
    out += bitCount >> 3;
    bits >>= bitCount & ~7U;
    bitCount &= 7;
  };
  std::size_t i = 0;
  for (; i + 4 <= count; i += 4) {
    const Code a = codes[bytes[i]];
    const Code b = codes[bytes[i + 1]];
    const Code c = codes[bytes[i + 2]];
    const Code d = codes[bytes[i + 3]];
    const std::uint64_t firstTwo = a.bits | std::uint64_t{b.bits} << a.length;
    const std::uint64_t lastTwo = c.bits | std::uint64_t{d.bits} << c.length;
    const unsigned firstLength = unsigned{a.length} + b.length;
    bits |= (firstTwo | lastTwo << firstLength) << bitCount;
    bitCount += firstLength + c.length + d.length;
    flushLocal();
  }
  for (; i < count; ++i) {
    const Code code = codes[bytes[i]];
    bits |= std::uint64_t{code.bits} << bitCount;
    bitCount += code.length;
    flushLocal();
  }
  out_ = out;
  bits_ = bits;
  bitCount_ = bitCount;
}

void LiteralDeflate::writeMatch(std::span<const std::uint8_t> bytes, const Match& match) {
  const Symbol distance = distanceSymbol(match.distance);
  const Code distanceCode = distanceCodes_[distance.number];
  const std::size_t left = splitMatch(match.length, [&](std::size_t length) {
    const Symbol& symbol = lengthSymbols[length];
    put(literalCodes_[symbol.number].bits, literalCodes_[symbol.number].length);
    put(length - symbol.base, symbol.extraBits);
    put(distanceCode.bits, distanceCode.length);
    put(match.distance - distance.base, distance.extraBits); // 53 bits at most, with 7 before
    flush();
  });
  writeLiterals(bytes.data() + match.start + match.length - left, left);
}

void LiteralDeflate::writeStored(std::span<const std::uint8_t> bytes, bool last) {
  do {
    const auto part = bytes.first(std::min<std::size_t>(bytes.size(), 65535));
    bytes = bytes.subspan(part.size());
    put(last && bytes.empty() ? 1 : 0, 1);
    put(0, 2);
    put(0, (8 - bitCount_ % 8) % 8);
    flush();
    put(part.size() | (~part.size() & 0xFFFF) << 16, 32);
    flush();
    std::memcpy(out_, part.data(), part.size());
    out_ += part.size();
  } while (!bytes.empty());
}

void LiteralDeflate::put(std::uint64_t bits, unsigned count) {
  bits_ |= bits << bitCount_;
  bitCount_ += count;
}

static_assert(std::endian::native == std::endian::little, "flush writes the lowest byte first");

void LiteralDeflate::flush() {
  std::memcpy(out_, &bits_, 8);
  out_ += bitCount_ >> 3;
  bits_ >>= bitCount_ & ~7U;
  bitCount_ &= 7;
}

} // namespace vitrelle::host
