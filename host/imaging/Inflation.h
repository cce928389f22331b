// A deflate stream's blocks, one after the other. What comes out are bytes; or units of 16 bits,
// when the stream is entered in the middle and what its repeats copy is not known yet.
#pragma once

#include "host/imaging/BitReader.h"
#include "host/imaging/InflateTables.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>

namespace vitrelle::host::inflate {

/// How far back a repeat reaches at most, in bytes.
inline constexpr std::size_t windowSize = std::size_t{32} << 10;

/// Copies what lies `distance` before `out`, in whole steps: up to 8 bytes too many. Most repeats
/// are short, and whether their distance is too can't be predicted, so the first 8 bytes take no
/// branch: a shorter distance's bytes are multiplied to 8.
inline void repeat(std::uint8_t* out, std::size_t distance, std::size_t length) {
  struct Pattern {
    std::uint64_t mask, factor;
    std::size_t step; ///< the whole patterns in 8 bytes
  };
  static constexpr Pattern patterns[] = {{0, 0, 0},
                                         {0xFF, 0x0101010101010101, 8},
                                         {0xFFFF, 0x0001000100010001, 8},
                                         {0xFFFFFF, 0x0001000001000001, 6},
                                         {0xFFFFFFFF, 0x0000000100000001, 8},
                                         {0xFFFFFFFFFF, 0x0000010000000001, 5},
                                         {0xFFFFFFFFFFFF, 0x0001000000000001, 6},
                                         {0xFFFFFFFFFFFFFF, 0x0100000000000001, 7},
                                         {0xFFFFFFFFFFFFFFFF, 1, 8}};
  const Pattern& pattern = patterns[std::min<std::size_t>(distance, 8)];
  std::uint64_t word = 0;
  std::memcpy(&word, out - distance, 8);
  word = (word & pattern.mask) * pattern.factor;
  std::memcpy(out, &word, 8);
  if (length <= 8) return;
  if (distance == 1) {
    std::memset(out + 8, *out, length - 8);
  } else if (distance < 8) {
    for (std::size_t i = pattern.step; i < length; i += pattern.step)
      std::memcpy(out + i, &word, 8);
  } else {
    for (std::size_t i = 8; i < length; i += 8)
      std::memcpy(out + i, out + i - distance, 8);
  }
}

/// Few streams' worth: the plain way will do.
inline void repeat(std::uint16_t* out, std::size_t distance, std::size_t length) {
  for (std::size_t i = 0; i < length; ++i)
    out[i] = out[i - distance];
}

/// Writes up to three literals, the first lowest, as four units.
inline void putFour(std::uint8_t* out, std::uint32_t bytes) {
  std::memcpy(out, &bytes, 4);
}
inline void putFour(std::uint16_t* out, std::uint32_t bytes) {
  std::uint64_t units = bytes;
  units = (units | units << 16) & 0x0000FFFF0000FFFF;
  units = (units | units << 8) & 0x00FF00FF00FF00FF;
  std::memcpy(out, &units, 8);
}

enum class BlockEnd { more, lastBlock, damaged };

template <class Unit>
class Inflation final {
 public:
  /// Writes from `out` to `end`, and up to 32 units behind it. Repeats reach back to `start`.
  Inflation(BitReader in, const Unit* start, Unit* out, Unit* end)
      : in_(in), start_(start), out_(out), end_(end) {}

  BlockEnd decodeNextBlock() {
    in_.refill();
    const bool last = in_.take(1) != 0;
    const std::uint32_t type = in_.take(2);
    const bool sound = type == 0   ? copyStored()
                       : type == 1 ? buildFixedCodes() && decodeCodes()
                                   : type == 2 && readCodes() && decodeCodes();
    if (!sound || in_.isExhausted()) return BlockEnd::damaged;
    return last ? BlockEnd::lastBlock : BlockEnd::more;
  }

  Unit* out() const { return out_; }
  const BitReader& in() const { return in_; }

 private:
  bool copyStored() {
    const auto rest = in_.rest();
    if (rest.size() < 4) return false;
    const unsigned length = rest[0] | static_cast<unsigned>(rest[1]) << 8;
    const unsigned check = rest[2] | static_cast<unsigned>(rest[3]) << 8;
    if ((length ^ check) != 0xFFFF || rest.size() - 4 < length ||
        static_cast<std::size_t>(end_ - out_) < length) {
      return false;
    }
    out_ = std::copy_n(rest.data() + 4, length, out_);
    in_.advance(4 + length);
    return true;
  }

  bool buildFixedCodes() {
    if (hasFixedCodes_) return true; // a file may hold millions of such blocks, all empty
    std::array<std::uint8_t, literalSymbols> lengths{};
    for (std::size_t i = 0; i < literalSymbols; ++i) {
      lengths[i] = i < 144 ? 8 : i < 256 ? 9 : i < 280 ? 7 : 8;
    }
    std::array<std::uint8_t, distanceSymbols> distances{};
    distances.fill(5);
    hasFixedCodes_ = literals_.build(lengths) && distances_.build(distances, distanceMeanings);
    return hasFixedCodes_;
  }

  /// The codes of a block, whose lengths are themselves coded.
  bool readCodes() {
    constexpr std::uint8_t order[] = {16, 17, 18, 0, 8,  7, 9,  6, 10, 5,
                                      11, 4,  12, 3, 13, 2, 14, 1, 15};
    const std::size_t literalCount = in_.take(5) + 257;
    const std::size_t distanceCount = in_.take(5) + 1;
    const std::size_t itemCount = in_.take(4) + 4;
    if (literalCount > 286) return false;
    std::array<std::uint8_t, 19> itemLengths{};
    for (std::size_t i = 0; i < itemCount; ++i) {
      if (i % 16 == 0) in_.refill();
      itemLengths[order[i]] = static_cast<std::uint8_t>(in_.take(3));
    }
    static constexpr auto itemMeanings = [] {
      std::array<Entry, 19> meanings{};
      for (std::uint32_t i = 0; i < 19; ++i)
        meanings[i] = literalEntry(i, 1, 0);
      return meanings;
    }();
    if (!items_.build(itemLengths, itemMeanings, false)) return false;

    std::array<std::uint8_t, literalSymbols + distanceSymbols> lengths{};
    const std::size_t count = literalCount + distanceCount;
    for (std::size_t i = 0; i < count;) {
      in_.refill();
      const Entry item = items_.primary(in_.bits());
      if (literalsOf(item) == 0 || in_.isExhausted()) return false;
      in_.skip(bitsOf(item));
      const std::uint32_t symbol = bytesOf(item);
      std::size_t repeats = 1;
      std::uint8_t length = static_cast<std::uint8_t>(symbol);
      if (symbol >= 16) {
        if (symbol == 16 && i == 0) return false;
        length = symbol == 16 ? lengths[i - 1] : 0;
        repeats = symbol == 16   ? 3 + in_.take(2)
                  : symbol == 17 ? 3 + in_.take(3)
                                 : 11 + in_.take(7);
      }
      if (repeats > count - i) return false;
      for (; repeats > 0; --repeats)
        lengths[i++] = length;
    }
    hasFixedCodes_ = false;
    const std::span all(lengths);
    return lengths[256] != 0 && literals_.build(all.first(literalCount)) &&
           distances_.build(all.subspan(literalCount, distanceCount), distanceMeanings);
  }

  bool decodeCodes() {
    // In locals, so that stores of bytes do not make the compiler forget them.
    BitReader in = in_;
    Unit* out = out_;
    const auto putLiterals = [&](Entry entry) {
      putFour(out, bytesOf(entry));
      out += literalsOf(entry);
      in.skip(bitsOf(entry));
    };
    bool sound = false;
    // Each round writes at most 12 literals and a byte more, behind the end too: no check between.
    while (out <= end_) {
      in.refill();
      Entry entry = literals_.look(in.bits());
      if (literalsOf(entry) != 0) {
        putLiterals(entry);
        entry = literals_.look(in.bits());
        if (literalsOf(entry) != 0) {
          putLiterals(entry);
          entry = literals_.look(in.bits());
          if (literalsOf(entry) != 0) {
            putLiterals(entry);
            entry = literals_.look(in.bits());
            if (literalsOf(entry) != 0) {
              putLiterals(entry);
              continue;
            }
          }
        }
        in.refill();
      }
      in.skip(bitsOf(entry));
      if (kindOf(entry) == Kind::subtable) {
        entry = literals_.secondary(entry, in.bits());
        in.skip(bitsOf(entry));
      }
      if (literalsOf(entry) != 0) {
        *out++ = static_cast<Unit>(bytesOf(entry));
      } else if (kindOf(entry) == Kind::match) {
        if (!copyMatch(in, entry, out)) break;
      } else {
        sound = kindOf(entry) == Kind::endOfBlock;
        break;
      }
      if (in.isExhausted()) break;
    }
    in_ = in;
    out_ = out;
    return sound && out <= end_;
  }

  /// After a refill and one code of 15 bits there are bits enough for the rest of a match.
  bool copyMatch(BitReader& in, Entry lengthEntry, Unit*& out) const {
    const auto withExtra = [&](Entry entry) {
      return valueOf(entry) + in.take(extraBitsOf(entry));
    };
    const std::size_t length = withExtra(lengthEntry);
    Entry entry = distances_.primary(in.bits());
    in.skip(bitsOf(entry));
    if (kindOf(entry) == Kind::subtable) {
      entry = distances_.secondary(entry, in.bits());
      in.skip(bitsOf(entry));
    }
    if (kindOf(entry) != Kind::match) return false;
    const std::size_t distance = withExtra(entry);
    if (distance > static_cast<std::size_t>(out - start_) || out > end_ ||
        length > static_cast<std::size_t>(end_ - out)) {
      return false;
    }
    repeat(out, distance, length);
    out += length;
    return true;
  }

  BitReader in_;
  const Unit* start_;
  Unit* out_;
  Unit* end_;
  LiteralTable literals_;
  CodeTable<8, distanceSymbols> distances_;
  CodeTable<7, 19> items_;
  bool hasFixedCodes_ = false; ///< the tables are those of blocks without codes of their own
};

} // namespace vitrelle::host::inflate
