#include "host/imaging/PictureDeflate.h"

#include "host/imaging/DeflateSymbols.h"
#include "host/imaging/HuffmanCode.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

namespace vitrelle::host {

namespace {

/// Four codes and the 7 bits that a flush may leave fit 64 bits.
constexpr int longestCode = 14;

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

} // namespace

std::size_t PictureDeflate::bound(std::size_t bytes, std::size_t blocks, std::size_t largestBlock) {
  // What is kept is never more than stored; while it works, a block may run to its longest codes.
  const std::size_t stored = bytes + 5 * (bytes / 65535 + 2 * blocks + 1);
  return stored + largestBlock * longestCode / 8 + 1024;
}

void PictureDeflate::start(std::uint8_t* out) {
  out_ = out;
  bits_ = 0;
  bitCount_ = 0;
  finder_.startStream();
}

void PictureDeflate::block(std::span<const std::uint8_t> bytes, bool last, std::size_t history) {
  std::uint8_t* const start = out_;
  const std::uint64_t bitsBefore = bits_;
  const unsigned bitCountBefore = bitCount_;

  finder_.startBlock(bytes);
  matches_ = finder_.findRuns();
  makeCodes(bytes);
  if (worthSearching(bytes.size())) {
    matches_ = finder_.findRepeats(history, literalLengths_);
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
}

/// Runs leave little of flat art and text, but that little is edges, dear as literals and often
/// the same. What they leave of smooth gradients is cheap, and in photographs nothing repeats.
bool PictureDeflate::worthSearching(std::size_t bytes) const {
  constexpr std::uint64_t dearLiteralBits = 3;
  return literals_ <= bytes / 2 && literalBits_ > dearLiteralBits * literals_;
}

void PictureDeflate::makeCodes(std::span<const std::uint8_t> bytes) {
  std::array<std::uint32_t, literalSymbolCount> counts{};
  std::array<std::uint32_t, distanceSymbolCount> distanceCounts{};
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
    std::array<std::uint16_t, literalSymbolCount> bits{};
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

void PictureDeflate::writeHeader(bool last) {
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

void PictureDeflate::writeSymbols(std::span<const std::uint8_t> bytes) {
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

void PictureDeflate::writeLiterals(const std::uint8_t* bytes, std::size_t count) {
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

void PictureDeflate::writeMatch(std::span<const std::uint8_t> bytes, const Match& match) {
  const DeflateSymbol distance = distanceSymbol(match.distance);
  const Code distanceCode = distanceCodes_[distance.number];
  const std::size_t left = splitMatch(match.length, [&](std::size_t length) {
    const DeflateSymbol& symbol = lengthSymbols[length];
    put(literalCodes_[symbol.number].bits, literalCodes_[symbol.number].length);
    put(length - symbol.base, symbol.extraBits);
    put(distanceCode.bits, distanceCode.length);
    put(match.distance - distance.base, distance.extraBits); // 53 bits at most, with 7 before
    flush();
  });
  writeLiterals(bytes.data() + match.start + match.length - left, left);
}

void PictureDeflate::writeStored(std::span<const std::uint8_t> bytes, bool last) {
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

void PictureDeflate::put(std::uint64_t bits, unsigned count) {
  bits_ |= bits << bitCount_;
  bitCount_ += count;
}

static_assert(std::endian::native == std::endian::little, "flush writes the lowest byte first");

void PictureDeflate::flush() {
  std::memcpy(out_, &bits_, 8);
  out_ += bitCount_ >> 3;
  bits_ >>= bitCount_ & ~7U;
  bitCount_ &= 7;
}

} // namespace vitrelle::host
