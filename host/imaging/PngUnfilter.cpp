#include "host/imaging/PngUnfilter.h"

#include <array>
#include <cstdlib>
#include <cstring>
#include <utility>
#include <vector>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace vitrelle::host {

namespace {

#if defined(__SSE2__)

/// One RGBA pixel, its four samples in lanes of 16 bits so that differences keep their sign.
struct Pixel {
  __m128i lanes;
};

inline Pixel load(const std::uint8_t* bytes) {
  std::uint32_t word = 0;
  std::memcpy(&word, bytes, 4);
  return {_mm_unpacklo_epi8(_mm_cvtsi32_si128(static_cast<int>(word)), _mm_setzero_si128())};
}
inline std::uint32_t packed(Pixel pixel) {
  return static_cast<std::uint32_t>(_mm_cvtsi128_si32(_mm_packus_epi16(pixel.lanes, pixel.lanes)));
}
inline Pixel zeroPixel() {
  return {_mm_setzero_si128()};
}
/// The sum of both, each sample modulo 256.
inline Pixel sum(Pixel left, Pixel right) {
  return {_mm_and_si128(_mm_add_epi16(left.lanes, right.lanes), _mm_set1_epi16(255))};
}
inline Pixel average(Pixel left, Pixel up) {
  return {_mm_srli_epi16(_mm_add_epi16(left.lanes, up.lanes), 1)};
}
inline __m128i magnitude(__m128i value) {
  return _mm_max_epi16(value, _mm_sub_epi16(_mm_setzero_si128(), value));
}
inline __m128i choose(__m128i mask, __m128i yes, __m128i no) {
  return _mm_or_si128(_mm_and_si128(mask, yes), _mm_andnot_si128(mask, no));
}
inline Pixel paeth(Pixel left, Pixel up, Pixel corner) {
  const __m128i fromUp = _mm_sub_epi16(up.lanes, corner.lanes);
  const __m128i fromLeft = _mm_sub_epi16(left.lanes, corner.lanes);
  const __m128i toLeft = magnitude(fromUp);
  const __m128i toUp = magnitude(fromLeft);
  const __m128i toCorner = magnitude(_mm_add_epi16(fromUp, fromLeft));
  const __m128i nearest = _mm_min_epi16(_mm_min_epi16(toLeft, toUp), toCorner);
  return {choose(_mm_cmpeq_epi16(nearest, toLeft), left.lanes,
                 choose(_mm_cmpeq_epi16(nearest, toUp), up.lanes, corner.lanes))};
}

#else

struct Pixel {
  std::array<int, 4> samples;
};

inline Pixel load(const std::uint8_t* bytes) {
  return {{bytes[0], bytes[1], bytes[2], bytes[3]}};
}
inline std::uint32_t packed(Pixel pixel) {
  std::uint8_t bytes[4];
  for (std::size_t i = 0; i < 4; ++i)
    bytes[i] = static_cast<std::uint8_t>(pixel.samples[i]);
  std::uint32_t word = 0;
  std::memcpy(&word, bytes, 4);
  return word;
}
inline Pixel zeroPixel() {
  return {};
}
inline Pixel sum(Pixel left, Pixel right) {
  for (std::size_t i = 0; i < 4; ++i)
    left.samples[i] = (left.samples[i] + right.samples[i]) & 255;
  return left;
}
inline Pixel average(Pixel left, Pixel up) {
  for (std::size_t i = 0; i < 4; ++i)
    left.samples[i] = (left.samples[i] + up.samples[i]) >> 1;
  return left;
}
inline Pixel paeth(Pixel left, Pixel up, Pixel corner) {
  Pixel result{};
  for (std::size_t i = 0; i < 4; ++i) {
    const int fromUp = up.samples[i] - corner.samples[i];
    const int fromLeft = left.samples[i] - corner.samples[i];
    const int toLeft = std::abs(fromUp);
    const int toUp = std::abs(fromLeft);
    const int toCorner = std::abs(fromUp + fromLeft);
    result.samples[i] = toLeft <= toUp && toLeft <= toCorner ? left.samples[i]
                        : toUp <= toCorner                   ? up.samples[i]
                                                             : corner.samples[i];
  }
  return result;
}

#endif

constexpr std::uint8_t filterCount = 5;
/// 255 in the alpha sample of a packed pixel.
constexpr std::uint32_t alphaMask = 0xFF000000;

/// One row on its way from left to right.
template <std::uint8_t filter, int bytesPerPixel>
struct RowWalk {
  const std::uint8_t* in; ///< behind the filter number
  std::uint8_t* out;
  const std::uint8_t* above; ///< an RGBA row
  Pixel left = zeroPixel();
  Pixel corner = zeroPixel();
  std::uint32_t alpha = alphaMask;

  void step(std::size_t x) {
    const Pixel up = load(above + 4 * x);
    Pixel prediction = zeroPixel();
    if constexpr (filter == 1) prediction = left;
    if constexpr (filter == 2) prediction = up;
    if constexpr (filter == 3) prediction = average(left, up);
    if constexpr (filter == 4) prediction = paeth(left, up, corner);
    left = sum(load(in + static_cast<std::size_t>(bytesPerPixel) * x), prediction);
    corner = up;
    std::uint32_t word = packed(left);
    if constexpr (bytesPerPixel == 3) word |= alphaMask;
    if constexpr (bytesPerPixel == 4) alpha &= word;
    std::memcpy(out + 4 * x, &word, 4);
  }
};

struct RowPlace {
  const std::uint8_t* in;
  std::uint8_t* out;
};

/// Both rows at once, the lower one a pixel behind: each pixel waits for the one to its left, and
/// two such chains run beside each other in the processor.
template <std::uint8_t upperFilter, std::uint8_t lowerFilter, int bytesPerPixel>
std::uint32_t twoRows(RowPlace upper, RowPlace lower, const std::uint8_t* above,
                      std::size_t width) {
  RowWalk<upperFilter, bytesPerPixel> first{.in = upper.in, .out = upper.out, .above = above};
  RowWalk<lowerFilter, bytesPerPixel> second{.in = lower.in, .out = lower.out, .above = upper.out};
  first.step(0);
  for (std::size_t x = 1; x < width; ++x) {
    first.step(x);
    second.step(x - 1);
  }
  second.step(width - 1);
  return first.alpha & second.alpha;
}

template <std::uint8_t filter, int bytesPerPixel>
std::uint32_t oneRow(RowPlace row, const std::uint8_t* above, std::size_t width) {
  RowWalk<filter, bytesPerPixel> walk{.in = row.in, .out = row.out, .above = above};
  for (std::size_t x = 0; x < width; ++x)
    walk.step(x);
  return walk.alpha;
}

using TwoRows = std::uint32_t (*)(RowPlace, RowPlace, const std::uint8_t*, std::size_t);
using OneRow = std::uint32_t (*)(RowPlace, const std::uint8_t*, std::size_t);

template <int bytesPerPixel, std::size_t... numbers>
constexpr std::array<TwoRows, sizeof...(numbers)> twoRowsTable(std::index_sequence<numbers...>) {
  return {twoRows<numbers / filterCount, numbers % filterCount, bytesPerPixel>...};
}
template <int bytesPerPixel, std::size_t... numbers>
constexpr std::array<OneRow, sizeof...(numbers)> oneRowTable(std::index_sequence<numbers...>) {
  return {oneRow<numbers, bytesPerPixel>...};
}

template <int bytesPerPixel>
Unfiltered unfilterRows(const FilteredRows& filtered, std::uint8_t* out,
                        std::size_t outBytesPerRow) {
  static constexpr auto pairs =
      twoRowsTable<bytesPerPixel>(std::make_index_sequence<filterCount * filterCount>());
  static constexpr auto singles =
      oneRowTable<bytesPerPixel>(std::make_index_sequence<filterCount>());
  const auto place = [&](std::size_t y) {
    return RowPlace{filtered.rows + y * filtered.bytesPerRow + 1, out + y * outBytesPerRow};
  };
  const auto filterOf = [&](std::size_t y) { return filtered.rows[y * filtered.bytesPerRow]; };

  const std::vector<std::uint8_t> zeros(4 * filtered.width);
  const std::uint8_t* above = zeros.data();
  std::uint32_t alpha = alphaMask;
  std::size_t y = 0;
  for (; y + 2 <= filtered.height; y += 2) {
    const std::uint8_t upper = filterOf(y);
    const std::uint8_t lower = filterOf(y + 1);
    if (upper >= filterCount || lower >= filterCount) return Unfiltered::damaged;
    const std::size_t pair = std::size_t{upper} * filterCount + lower;
    alpha &= pairs[pair](place(y), place(y + 1), above, filtered.width);
    above = place(y + 1).out;
  }
  if (y < filtered.height) {
    if (filterOf(y) >= filterCount) return Unfiltered::damaged;
    alpha &= singles[filterOf(y)](place(y), above, filtered.width);
  }
  return alpha == alphaMask ? Unfiltered::opaque : Unfiltered::seeThrough;
}

} // namespace

Unfiltered unfilter(const FilteredRows& filtered, std::uint8_t* out, std::size_t outBytesPerRow) {
  return filtered.bytesPerPixel == 3 ? unfilterRows<3>(filtered, out, outBytesPerRow)
                                     : unfilterRows<4>(filtered, out, outBytesPerRow);
}

} // namespace vitrelle::host
