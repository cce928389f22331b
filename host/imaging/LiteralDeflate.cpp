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
constexpr std::size_t symbolCount = 286;
constexpr std::size_t longestMatch = 258;
/// Shorter runs cost more as a match than as literals of a good code.
constexpr std::size_t shortestRun = 12;
/// Four codes and the 7 bits that a flush may leave fit 64 bits.
constexpr int longestCode = 14;

struct LengthSymbol {
  std::uint16_t symbol = 0;
  std::uint8_t extraBits = 0;
  std::uint16_t base = 0;
};

/// Of each match length from 3 to 258.
constexpr std::array<LengthSymbol, longestMatch + 1> makeLengthSymbols() {
  std::array<LengthSymbol, longestMatch + 1> table{};
  std::size_t length = 3;
  for (std::size_t symbol = firstLengthSymbol; symbol < symbolCount - 1; ++symbol) {
    const std::size_t step = symbol - firstLengthSymbol;
    const std::size_t extra = step < 8 ? 0 : step / 4 - 1;
    const std::size_t base = length;
    for (; length < base + (std::size_t{1} << extra) && length < longestMatch; ++length) {
      table[length] = {static_cast<std::uint16_t>(symbol), static_cast<std::uint8_t>(extra),
                       static_cast<std::uint16_t>(base)};
    }
  }
  table[longestMatch] = {symbolCount - 1, 0, longestMatch};
  return table;
}
constexpr auto lengthSymbols = makeLengthSymbols();

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
}

void LiteralDeflate::block(std::span<const std::uint8_t> bytes, bool last) {
  std::uint8_t* const start = out_;
  const std::uint64_t bitsBefore = bits_;
  const unsigned bitCountBefore = bitCount_;

  findRuns(bytes);
  makeCodes(bytes);
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
}

void LiteralDeflate::findRuns(std::span<const std::uint8_t> bytes) {
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
      if (end - start >= shortestRun) runs_.push_back({start, end - start});
      if (end >= next) {
        next = end;
        break;
      }
      six &= ~std::uint64_t{0} << (end - position);
    }
    position = next;
  }
}

void LiteralDeflate::makeCodes(std::span<const std::uint8_t> bytes) {
  std::array<std::uint32_t, symbolCount> counts{};
  std::size_t runBytes = 0;
  for (const Run& run : runs_) {
    runBytes += run.length;
    const std::size_t rest = run.length % longestMatch;
    counts[symbolCount - 1] += static_cast<std::uint32_t>(run.length / longestMatch);
    if (rest >= 3) {
      ++counts[lengthSymbols[rest].symbol];
    } else {
      counts[bytes[run.start]] += static_cast<std::uint32_t>(rest);
    }
  }

  // Many literals are told well enough by every fourth; few are counted.
  const std::size_t literals = bytes.size() - runBytes;
  const std::size_t step = literals > blockBytes / 8 ? 4 : 1;
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
  for (const Run& run : runs_) {
    tally(run.start);
    position = run.start + run.length;
  }
  tally(bytes.size());
  for (std::size_t byte = 0; byte < 256; ++byte) {
    const std::uint32_t seen =
        tallies[0][byte] + tallies[1][byte] + tallies[2][byte] + tallies[3][byte];
    counts[byte] += seen * static_cast<std::uint32_t>(step);
    if (step > 1 && counts[byte] == 0) counts[byte] = 1; // it may stand between the samples
  }
  counts[endOfBlock] = 1;

  lengths_.resize(symbolCount);
  huffmanLengths(counts, longestCode, lengths_);
  std::array<std::uint16_t, symbolCount> codes{};
  canonicalCodes(lengths_, codes);
  codes_.resize(symbolCount);
  for (std::size_t symbol = 0; symbol < symbolCount; ++symbol) {
    codes_[symbol] = {codes[symbol], lengths_[symbol]};
  }
}

void LiteralDeflate::writeHeader(bool last) {
  // The lengths of the literal codes and of the one distance code, 1, which takes one bit.
  std::vector<std::uint8_t> lengths = lengths_;
  while (lengths.back() == 0)
    lengths.pop_back();
  const std::size_t literalCodes = lengths.size();
  lengths.push_back(1);

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
  put(literalCodes - 257, 5);
  put(0, 5); // one distance code
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
  for (const Run& run : runs_) {
    writeLiterals(bytes.data() + position, run.start - position);
    writeRun(bytes[run.start], run.length);
    position = run.start + run.length;
  }
  writeLiterals(bytes.data() + position, bytes.size() - position);
  put(codes_[endOfBlock].bits, codes_[endOfBlock].length);
  flush();
}

void LiteralDeflate::writeLiterals(const std::uint8_t* bytes, std::size_t count) {
  // The state in locals: the compiler must assume that a store of bytes changes the members.
  const Code* const codes = codes_.data();
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

void LiteralDeflate::writeRun(std::uint8_t byte, std::size_t length) {
  constexpr unsigned distanceBits = 1; // the one distance code is the bit 0
  const Code longest = codes_[symbolCount - 1];
  for (; length >= longestMatch; length -= longestMatch) {
    put(longest.bits, longest.length + distanceBits);
    flush();
  }
  if (length < 3) {
    for (; length > 0; --length)
      put(codes_[byte].bits, codes_[byte].length);
  } else {
    const LengthSymbol& symbol = lengthSymbols[length];
    put(codes_[symbol.symbol].bits, codes_[symbol.symbol].length);
    put(length - symbol.base, symbol.extraBits + distanceBits);
  }
  flush();
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
