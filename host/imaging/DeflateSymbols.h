// The symbols that deflate tells matches with.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

namespace vitrelle::host {

inline constexpr std::size_t endOfBlock = 256;
inline constexpr std::size_t firstLengthSymbol = 257;
inline constexpr std::size_t longestLengthSymbol = 285;
inline constexpr std::size_t literalSymbolCount = 286; ///< literals, the end and lengths
inline constexpr std::size_t distanceSymbolCount = 30;
inline constexpr std::size_t shortestMatch = 3;
inline constexpr std::size_t longestMatch = 258;

/// A match length's or distance's symbol, with the bits that tell it from the symbol's others.
struct DeflateSymbol {
  std::uint16_t number = 0;
  std::uint8_t extraBits = 0;
  std::uint16_t base = 0;
};

/// Of each match length from 3 to 258.
constexpr std::array<DeflateSymbol, longestMatch + 1> makeLengthSymbols() {
  std::array<DeflateSymbol, longestMatch + 1> table{};
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
inline constexpr auto lengthSymbols = makeLengthSymbols();

/// Beyond the first four, each power of two of distances has two symbols.
constexpr DeflateSymbol distanceSymbol(std::uint32_t distance) {
  const std::uint32_t index = distance - 1;
  if (index < 4)
    return {static_cast<std::uint16_t>(index), 0, static_cast<std::uint16_t>(distance)};
  const int extra = static_cast<int>(std::bit_width(index)) - 2;
  const std::uint32_t upper = index >> extra; // 2 or 3
  return {static_cast<std::uint16_t>(2 * static_cast<std::uint32_t>(extra) + upper),
          static_cast<std::uint8_t>(extra), static_cast<std::uint16_t>((upper << extra) + 1)};
}

} // namespace vitrelle::host
