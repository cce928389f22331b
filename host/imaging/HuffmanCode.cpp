#include "host/imaging/HuffmanCode.h"

#include <algorithm>
#include <array>

namespace vitrelle::host {

namespace {

constexpr std::size_t mostSymbols = 288;
constexpr int longestOfAll = 15;

/// How many symbols have each length.
using LengthCounts = std::array<std::uint32_t, longestOfAll + 1>;

/// The depths of the leaves of a Huffman tree, as a count for each depth, those beyond `longest`
/// counted at it. `sorted` holds the symbols' counts in ascending order.
LengthCounts treeDepths(std::span<const std::uint32_t> sorted, int longest) {
  // Leaves first, then the inner nodes in the order of their making, which is ascending too.
  const std::size_t leaves = sorted.size();
  std::array<std::uint64_t, 2 * mostSymbols> weight{};
  std::array<std::uint16_t, 2 * mostSymbols> parent{};
  std::ranges::copy(sorted, weight.begin());
  std::size_t leaf = 0;
  std::size_t inner = leaves;
  const std::size_t root = 2 * leaves - 2;
  for (std::size_t node = leaves; node <= root; ++node) {
    for (int child = 0; child < 2; ++child) {
      const bool takeLeaf = leaf < leaves && (inner >= node || weight[leaf] <= weight[inner]);
      const std::size_t taken = takeLeaf ? leaf++ : inner++;
      weight[node] += weight[taken];
      parent[taken] = static_cast<std::uint16_t>(node);
    }
  }
  LengthCounts depths{};
  std::array<std::uint8_t, 2 * mostSymbols> depth{};
  for (std::size_t node = root; node-- > 0;) {
    const int deeper = std::min(depth[parent[node]] + 1, 255);
    depth[node] = static_cast<std::uint8_t>(deeper);
    if (node < leaves) ++depths[static_cast<std::size_t>(std::min(deeper, longest))];
  }
  return depths;
}

/// Lengthens codes until all fit into the tree again: cutting it at `longest` overfilled it.
void makeRoom(LengthCounts& counts, int longest) {
  std::uint64_t used = 0;
  for (int length = 1; length <= longest; ++length) {
    used += std::uint64_t{counts[static_cast<std::size_t>(length)]} << (longest - length);
  }
  const std::uint64_t room = std::uint64_t{1} << longest;
  while (used > room) {
    // One of the longest codes moves under the deepest shorter one, which grows by a bit.
    int length = longest - 1;
    while (counts[static_cast<std::size_t>(length)] == 0)
      --length;
    --counts[static_cast<std::size_t>(length)];
    counts[static_cast<std::size_t>(length) + 1] += 2;
    --counts[static_cast<std::size_t>(longest)];
    --used;
  }
}

} // namespace

void huffmanLengths(std::span<const std::uint32_t> counts, int longest,
                    std::span<std::uint8_t> lengths) {
  std::array<std::uint16_t, mostSymbols> symbols{};
  std::size_t used = 0;
  for (std::size_t symbol = 0; symbol < counts.size(); ++symbol) {
    lengths[symbol] = 0;
    if (counts[symbol] != 0) symbols[used++] = static_cast<std::uint16_t>(symbol);
  }
  const std::span<std::uint16_t> ascending(symbols.data(), used);
  std::ranges::stable_sort(ascending, {}, [&](std::uint16_t symbol) { return counts[symbol]; });
  std::array<std::uint32_t, mostSymbols> sorted{};
  for (std::size_t i = 0; i < used; ++i)
    sorted[i] = counts[ascending[i]];

  LengthCounts perLength = treeDepths({sorted.data(), used}, longest);
  makeRoom(perLength, longest);
  std::size_t next = 0; // the rarest symbols get the longest codes
  for (int length = longest; length > 0; --length) {
    for (std::uint32_t i = 0; i < perLength[static_cast<std::size_t>(length)]; ++i) {
      lengths[ascending[next++]] = static_cast<std::uint8_t>(length);
    }
  }
}

void canonicalCodes(std::span<const std::uint8_t> lengths, std::span<std::uint16_t> codes) {
  LengthCounts perLength{};
  for (const std::uint8_t length : lengths)
    ++perLength[length];
  perLength[0] = 0;
  std::array<std::uint32_t, longestOfAll + 2> next{};
  for (std::size_t length = 1; length <= longestOfAll; ++length) {
    next[length + 1] = (next[length] + perLength[length]) << 1;
  }
  for (std::size_t symbol = 0; symbol < lengths.size(); ++symbol) {
    const int length = lengths[symbol];
    std::uint32_t code = length == 0 ? 0 : next[static_cast<std::size_t>(length)]++;
    std::uint32_t reversed = 0;
    for (int bit = 0; bit < length; ++bit, code >>= 1)
      reversed = reversed << 1 | (code & 1);
    codes[symbol] = static_cast<std::uint16_t>(reversed);
  }
}

} // namespace vitrelle::host
