// The code tables of the inflater: what the next bits of the stream stand for.
#pragma once

#include "host/imaging/HuffmanCode.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace vitrelle::host::inflate {

inline constexpr int longestCode = 15;
/// The codes may name two symbols of each kind that mean nothing.
inline constexpr std::size_t literalSymbols = 288;
inline constexpr std::size_t distanceSymbols = 32;

// An entry of a code table: lowest the bits to consume (6, so that a shift by the entry needs no
// mask), then how many literals it gives (2). Above them up to three literals, the first lowest;
// or, where there are none, a value (16), extra bits (4) and what it stands for.
using Entry = std::uint32_t;
enum class Kind : std::uint32_t {
  invalid = 0,
  match = 1, ///< value: base of a length or distance
  endOfBlock = 2,
  subtable = 3, ///< value: where it begins
};

constexpr Entry literalEntry(std::uint32_t bytes, std::uint32_t count, unsigned bits) {
  return bytes << 8 | count << 6 | bits;
}
constexpr Entry otherEntry(Kind kind, std::uint32_t value, std::uint32_t extraBits, unsigned bits) {
  return static_cast<std::uint32_t>(kind) << 28 | extraBits << 24 | value << 8 | bits;
}
constexpr unsigned bitsOf(Entry entry) {
  return entry & 63;
}
constexpr std::uint32_t literalsOf(Entry entry) {
  return entry >> 6 & 3;
}
constexpr std::uint32_t bytesOf(Entry entry) {
  return entry >> 8;
}
/// Of an entry without literals.
constexpr Kind kindOf(Entry entry) {
  return static_cast<Kind>(entry >> 28);
}
constexpr std::uint32_t valueOf(Entry entry) {
  return entry >> 8 & 0xFFFF;
}
constexpr unsigned extraBitsOf(Entry entry) {
  return entry >> 24 & 15;
}
constexpr bool isSubtable(Entry entry) {
  return literalsOf(entry) == 0 && kindOf(entry) == Kind::subtable;
}

/// What each symbol stands for; the bits of its code come in later.
inline constexpr auto literalMeanings = [] {
  std::array<Entry, literalSymbols> meanings{};
  for (std::uint32_t byte = 0; byte < 256; ++byte)
    meanings[byte] = literalEntry(byte, 1, 0);
  meanings[256] = otherEntry(Kind::endOfBlock, 0, 0, 0);
  std::uint32_t length = 3;
  for (std::uint32_t step = 0; step < 28; ++step) {
    const std::uint32_t extra = step < 8 ? 0 : step / 4 - 1;
    meanings[257 + step] = otherEntry(Kind::match, length, extra, 0);
    length += 1U << extra;
  }
  meanings[285] = otherEntry(Kind::match, 258, 0, 0);
  return meanings;
}();

inline constexpr auto distanceMeanings = [] {
  std::array<Entry, distanceSymbols> meanings{};
  std::uint32_t distance = 1;
  for (std::uint32_t symbol = 0; symbol < 30; ++symbol) {
    const std::uint32_t extra = symbol < 4 ? 0 : symbol / 2 - 1;
    meanings[symbol] = otherEntry(Kind::match, distance, extra, 0);
    distance += 1U << extra;
  }
  return meanings;
}();

/// The codes of a block by their first `primaryBits` bits; longer ones go on in subtables.
template <int primaryBits, std::size_t symbols>
class CodeTable final {
 public:
  /// False for lengths that make no complete code. None at all is let through, and fails when one
  /// is looked for; and so is, except among the lengths' own codes, a single code of one bit.
  bool build(std::span<const std::uint8_t> lengths, const std::array<Entry, symbols>& meanings,
             bool allowsSingle = true) {
    std::uint32_t room = 1U << longestCode;
    std::size_t used = 0;
    for (const std::uint8_t length : lengths) {
      if (length == 0) continue;
      const std::uint32_t taken = 1U << (longestCode - length);
      if (taken > room) return false;
      room -= taken;
      ++used;
    }
    const bool single = used == 1 && room == 1U << (longestCode - 1);
    if (room != 0 && used != 0 && !(single && allowsSingle)) return false;
    if (room != 0) std::ranges::fill(entries_, Entry{0});

    std::array<std::uint16_t, symbols> codes{};
    canonicalCodes(lengths, codes);
    std::size_t end = primarySize;
    if (hasLongCodes_) std::fill_n(entries_.begin(), primarySize, Entry{0});
    hasLongCodes_ = false;
    for (std::size_t symbol = 0; symbol < lengths.size(); ++symbol) {
      const unsigned length = lengths[symbol];
      if (length == 0) continue;
      if (length <= primaryBits) {
        fill(0, primarySize, codes[symbol], meanings[symbol], length);
        continue;
      }
      hasLongCodes_ = true;
      Entry& primary = entries_[codes[symbol] & (primarySize - 1)];
      if (!isSubtable(primary)) {
        primary = otherEntry(Kind::subtable, static_cast<std::uint32_t>(end), 0, primaryBits);
        end += subtableSize;
      }
      fill(valueOf(primary), subtableSize, codes[symbol] >> primaryBits, meanings[symbol],
           length - primaryBits);
    }
    return true;
  }

  Entry primary(std::uint64_t bits) const { return entries_[bits & (primarySize - 1)]; }
  Entry secondary(Entry entry, std::uint64_t bits) const {
    return entries_[valueOf(entry) + (bits & (subtableSize - 1))];
  }

 private:
  static constexpr std::size_t primarySize = std::size_t{1} << primaryBits;
  static constexpr std::size_t subtableSize = std::size_t{1} << (longestCode - primaryBits);

  /// Every index of a table of this size whose low bits are the code.
  void fill(std::size_t start, std::size_t size, std::size_t code, Entry meaning, unsigned bits) {
    const Entry entry = meaning | bits;
    for (std::size_t i = code; i < size; i += std::size_t{1} << bits)
      entries_[start + i] = entry;
  }

  /// A subtable is shared by two codes at least.
  std::array<Entry, primarySize + symbols / 2 * subtableSize> entries_{};
  bool hasLongCodes_ = false;
};

/// Literal codes, with one look giving as many literals as its bits hold.
class LiteralTable final {
 public:
  bool build(std::span<const std::uint8_t> lengths) {
    if (!single_.build(lengths, literalMeanings)) return false;
    for (std::size_t i = 0; i < joined_.size(); ++i)
      joined_[i] = join(i);
    return true;
  }
  Entry look(std::uint64_t bits) const { return joined_[bits & (joined_.size() - 1)]; }
  Entry secondary(Entry entry, std::uint64_t bits) const { return single_.secondary(entry, bits); }

 private:
  Entry join(std::size_t bits) const {
    const Entry first = single_.primary(bits);
    if (literalsOf(first) == 0) return first;
    const Entry second = single_.primary(bits >> bitsOf(first));
    const unsigned two = bitsOf(first) + bitsOf(second);
    if (literalsOf(second) == 0 || two > literalBits) return first;
    const std::uint32_t bytes = bytesOf(first) | bytesOf(second) << 8;
    const Entry third = single_.primary(bits >> two);
    const unsigned three = two + bitsOf(third);
    if (literalsOf(third) == 0 || three > literalBits) return literalEntry(bytes, 2, two);
    return literalEntry(bytes | bytesOf(third) << 16, 3, three);
  }

  static constexpr int literalBits = 11;

  CodeTable<literalBits, literalSymbols> single_;
  std::array<Entry, std::size_t{1} << literalBits> joined_{};
};

} // namespace vitrelle::host::inflate
