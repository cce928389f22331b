#include "host/imaging/Inflate.h"

#include "host/imaging/BigEndian.h"
#include "host/imaging/HuffmanCode.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

#include <libdeflate.h>

namespace vitrelle::host {

namespace {

constexpr int longestCode = 15;
constexpr std::size_t literalSymbols = 288;
constexpr std::size_t distanceSymbols = 32;

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
constexpr auto literalMeanings = [] {
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

constexpr auto distanceMeanings = [] {
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
  /// False for lengths that make no complete code. A single code of one bit is let through, which
  /// deflate allows for distances.
  bool build(std::span<const std::uint8_t> lengths, const std::array<Entry, symbols>& meanings) {
    std::uint32_t room = 1U << longestCode;
    std::size_t used = 0;
    for (const std::uint8_t length : lengths) {
      if (length == 0) continue;
      const std::uint32_t taken = 1U << (longestCode - length);
      if (taken > room) return false;
      room -= taken;
      ++used;
    }
    if (room != 0 && used > 1) return false;
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

constexpr int literalBits = 11;
constexpr int distanceBits = 8;

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

  CodeTable<literalBits, literalSymbols> single_;
  std::array<Entry, std::size_t{1} << literalBits> joined_{};
};

/// The bits of the stream, the first lowest. Behind the end there are zeros.
class BitReader final {
 public:
  explicit BitReader(std::span<const std::uint8_t> bytes)
      : next_(bytes.data()), end_(bytes.data() + bytes.size()) {}

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

  const std::uint8_t* next_;
  const std::uint8_t* end_;
  std::uint64_t bits_ = 0;
  unsigned count_ = 0;
  unsigned borrowed_ = 0; ///< zero bytes that stand for those behind the end
};

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

class Inflation final {
 public:
  Inflation(std::span<const std::uint8_t> deflated, std::uint8_t* out, std::size_t size)
      : in_(deflated), start_(out), out_(out), summed_(out), end_(out + size) {}

  /// False when a block is damaged or the output is not exactly filled.
  bool run(const std::function<void(std::size_t)>& onProgress) {
    bool last = false;
    while (!last) {
      in_.refill();
      last = in_.take(1) != 0;
      const std::uint32_t type = in_.take(2);
      const bool sound = type == 0   ? copyStored()
                         : type == 1 ? buildFixedCodes() && decodeBlock()
                                     : type == 2 && readCodes() && decodeBlock();
      if (!sound || in_.isExhausted()) return false;
      // Block by block, for whoever is told of a block may change it.
      checksum_ = libdeflate_adler32(checksum_, summed_, static_cast<std::size_t>(out_ - summed_));
      summed_ = out_;
      onProgress(static_cast<std::size_t>(out_ - start_));
    }
    return out_ == end_;
  }
  /// The checksum that stands behind the blocks is that of the output.
  bool isAsSummed() {
    const auto rest = in_.rest();
#ifdef FUZZING_BUILD_MODE_UNSAFE_FOR_PRODUCTION
    return rest.size() >= 4;
#else
    return rest.size() >= 4 && readBigEndian32(rest.data()) == checksum_;
#endif
  }

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
    std::memcpy(out_, rest.data() + 4, length);
    out_ += length;
    in_.advance(4 + length);
    return true;
  }

  bool buildFixedCodes() {
    std::array<std::uint8_t, literalSymbols> lengths{};
    for (std::size_t i = 0; i < literalSymbols; ++i) {
      lengths[i] = i < 144 ? 8 : i < 256 ? 9 : i < 280 ? 7 : 8;
    }
    std::array<std::uint8_t, distanceSymbols> distances{};
    distances.fill(5);
    return literals_.build(lengths) && distances_.build(distances, distanceMeanings);
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
    if (!items_.build(itemLengths, itemMeanings)) return false;

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
    const std::span all(lengths);
    return lengths[256] != 0 && literals_.build(all.first(literalCount)) &&
           distances_.build(all.subspan(literalCount, distanceCount), distanceMeanings);
  }

  bool decodeBlock() {
    // In locals, so that stores of bytes do not make the compiler forget them.
    BitReader in = in_;
    std::uint8_t* out = out_;
    const auto putLiterals = [&](Entry entry) {
      const std::uint32_t bytes = bytesOf(entry);
      std::memcpy(out, &bytes, 4);
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
        *out++ = static_cast<std::uint8_t>(bytesOf(entry));
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
  bool copyMatch(BitReader& in, Entry lengthEntry, std::uint8_t*& out) const {
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
  std::uint8_t* const start_;
  std::uint8_t* out_;
  const std::uint8_t* summed_; ///< up to here
  std::uint32_t checksum_ = 1;
  std::uint8_t* const end_;
  LiteralTable literals_;
  CodeTable<distanceBits, distanceSymbols> distances_;
  CodeTable<7, 19> items_;
};

} // namespace

bool inflateZlib(std::span<const std::uint8_t> stream, std::uint8_t* out, std::size_t size,
                 const std::function<void(std::size_t)>& onProgress) {
  // Method deflate, no preset dictionary, a header divisible by 31.
  if (stream.size() < 6 || (stream[0] & 15) != 8 || (stream[1] & 32) != 0 ||
      (stream[0] * 256 + stream[1]) % 31 != 0) {
    return false;
  }
  Inflation inflation(stream.subspan(2), out, size);
  return inflation.run(onProgress) && inflation.isAsSummed();
}

} // namespace vitrelle::host
