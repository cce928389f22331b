#include "host/imaging/Inflate.h"

#include "host/imaging/BigEndian.h"
#include "host/imaging/BitReader.h"
#include "host/imaging/InflateTables.h"

#include <algorithm>
#include <array>
#include <cstring>

#include <libdeflate.h>

namespace vitrelle::host {

namespace {

using namespace inflate;

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
  CodeTable<8, distanceSymbols> distances_;
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
