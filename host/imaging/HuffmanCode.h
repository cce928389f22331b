// Prefix codes of deflate: lengths from counts, codes from lengths.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace vitrelle::host {

/// Gives each symbol with a count a code length of 1 to `longest` bits, near the shortest total,
/// and 0 to the others. At least two symbols have counts, at most 288, and two to the power of
/// `longest` is no less than their number.
void huffmanLengths(std::span<const std::uint32_t> counts, int longest,
                    std::span<std::uint8_t> lengths);

/// The canonical code of each symbol, its first bit lowest, as deflate writes it.
void canonicalCodes(std::span<const std::uint8_t> lengths, std::span<std::uint16_t> codes);

} // namespace vitrelle::host
