#include "host/imaging/PngFilterKernels.h"

#include <cstdlib>

#if defined(__x86_64__)
#include <immintrin.h>
#endif

namespace vitrelle::host {

namespace {

std::uint8_t paethPredictor(int left, int above, int corner) {
  const int toLeft = std::abs(above - corner);
  const int toAbove = std::abs(left - corner);
  const int toCorner = std::abs(left + above - 2 * corner);
  if (toLeft <= toAbove && toLeft <= toCorner) return static_cast<std::uint8_t>(left);
  return static_cast<std::uint8_t>(toAbove <= toCorner ? above : corner);
}

PngFilterSums filterAllPlain(const std::uint8_t* row, const std::uint8_t* above,
                             std::size_t rowBytes, int bytesPerPixel, std::uint8_t* residuals,
                             std::size_t stride) {
  PngFilterSums sums{};
  for (std::size_t i = 0; i < rowBytes; ++i) {
    const int value = row[i];
    const int left = *(row + i - bytesPerPixel);
    const int up = above[i];
    const int corner = *(above + i - bytesPerPixel);
    const int predictions[5] = {0, left, up, (left + up) / 2, paethPredictor(left, up, corner)};
    for (std::size_t filter = 0; filter < 5; ++filter) {
      const auto residual = static_cast<std::uint8_t>(value - predictions[filter]);
      residuals[filter * stride + i] = residual;
      sums[filter] += residual < 128 ? residual : 256U - residual;
    }
  }
  return sums;
}

void packRgbPlain(const std::uint8_t* rgba, std::size_t pixels, std::uint8_t* rgb) {
  for (std::size_t i = 0; i < pixels; ++i) {
    for (std::size_t sample = 0; sample < 3; ++sample)
      rgb[3 * i + sample] = rgba[4 * i + sample];
  }
}

#if defined(__x86_64__)

#define VITRELLE_AVX2 __attribute__((target("avx2"), always_inline)) inline

VITRELLE_AVX2 __m256i load(const std::uint8_t* bytes) {
  return _mm256_loadu_si256(reinterpret_cast<const __m256i*>(bytes));
}

VITRELLE_AVX2 void store(std::uint8_t* bytes, __m256i value) {
  _mm256_storeu_si256(reinterpret_cast<__m256i*>(bytes), value);
}

/// Rounded down, where the instruction rounds up.
VITRELLE_AVX2 __m256i average(__m256i left, __m256i up) {
  const __m256i odd = _mm256_and_si256(_mm256_xor_si256(left, up), _mm256_set1_epi8(1));
  return _mm256_sub_epi8(_mm256_avg_epu8(left, up), odd);
}

/// Stays within bytes: the distances to left and above fit one, and the distance to the corner is
/// their difference where left and above lie on opposite sides of the corner, and else their sum,
/// which is never the nearest and stands as 255.
VITRELLE_AVX2 __m256i paeth(__m256i left, __m256i up, __m256i corner) {
  const __m256i zero = _mm256_setzero_si256();
  const __m256i upOver = _mm256_subs_epu8(up, corner);
  const __m256i upUnder = _mm256_subs_epu8(corner, up);
  const __m256i leftOver = _mm256_subs_epu8(left, corner);
  const __m256i leftUnder = _mm256_subs_epu8(corner, left);
  const __m256i opposite =
      _mm256_or_si256(_mm256_cmpeq_epi8(_mm256_or_si256(upUnder, leftOver), zero),
                      _mm256_cmpeq_epi8(_mm256_or_si256(upOver, leftUnder), zero));
  const __m256i toLeft = _mm256_or_si256(upOver, upUnder);
  const __m256i toUp = _mm256_or_si256(leftOver, leftUnder);
  const __m256i difference =
      _mm256_or_si256(_mm256_subs_epu8(toLeft, toUp), _mm256_subs_epu8(toUp, toLeft));
  const __m256i toCorner =
      _mm256_or_si256(difference, _mm256_xor_si256(opposite, _mm256_set1_epi8(-1)));
  const __m256i nearest = _mm256_min_epu8(_mm256_min_epu8(toLeft, toUp), toCorner);
  const __m256i upOrCorner = _mm256_blendv_epi8(corner, up, _mm256_cmpeq_epi8(toUp, nearest));
  return _mm256_blendv_epi8(upOrCorner, left, _mm256_cmpeq_epi8(toLeft, nearest));
}

struct Totals {
  __m256i none, sub, up, average, paeth;
};

/// Stores 32 residuals and counts those that the mask leaves.
VITRELLE_AVX2 __m256i keep(std::uint8_t* out, __m256i residual, __m256i mask, __m256i total) {
  store(out, residual);
  const __m256i magnitude = _mm256_and_si256(_mm256_abs_epi8(residual), mask);
  return _mm256_add_epi64(total, _mm256_sad_epu8(magnitude, _mm256_setzero_si256()));
}

VITRELLE_AVX2 void filterStep(const std::uint8_t* row, const std::uint8_t* above,
                              std::ptrdiff_t bytesPerPixel, std::uint8_t* residuals,
                              std::size_t stride, __m256i mask, Totals& totals) {
  const __m256i value = load(row);
  const __m256i left = load(row - bytesPerPixel);
  const __m256i up = load(above);
  const __m256i corner = load(above - bytesPerPixel);
  totals.none = keep(residuals, value, mask, totals.none);
  totals.sub = keep(residuals + stride, _mm256_sub_epi8(value, left), mask, totals.sub);
  totals.up = keep(residuals + 2 * stride, _mm256_sub_epi8(value, up), mask, totals.up);
  totals.average =
      keep(residuals + 3 * stride, _mm256_sub_epi8(value, average(left, up)), mask, totals.average);
  totals.paeth = keep(residuals + 4 * stride, _mm256_sub_epi8(value, paeth(left, up, corner)), mask,
                      totals.paeth);
}

VITRELLE_AVX2 std::uint64_t sum(__m256i total) {
  const __m128i halves =
      _mm_add_epi64(_mm256_castsi256_si128(total), _mm256_extracti128_si256(total, 1));
  return static_cast<std::uint64_t>(_mm_cvtsi128_si64(halves)) +
         static_cast<std::uint64_t>(_mm_extract_epi64(halves, 1));
}

__attribute__((target("avx2"))) PngFilterSums
filterAllAvx2(const std::uint8_t* row, const std::uint8_t* above, std::size_t rowBytes,
              int bytesPerPixel, std::uint8_t* residuals, std::size_t stride) {
  const __m256i zero = _mm256_setzero_si256();
  Totals totals{zero, zero, zero, zero, zero};
  std::size_t done = 0;
  for (; done + 32 <= rowBytes; done += 32) {
    filterStep(row + done, above + done, bytesPerPixel, residuals + done, stride,
               _mm256_set1_epi8(-1), totals);
  }
  if (done < rowBytes) {
    std::uint8_t mask[32] = {};
    for (std::size_t i = 0; i < rowBytes - done; ++i)
      mask[i] = 0xFF;
    filterStep(row + done, above + done, bytesPerPixel, residuals + done, stride, load(mask),
               totals);
  }
  return {sum(totals.none), sum(totals.sub), sum(totals.up), sum(totals.average),
          sum(totals.paeth)};
}

__attribute__((target("avx2"))) void packRgbAvx2(const std::uint8_t* rgba, std::size_t pixels,
                                                 std::uint8_t* rgb) {
  const __m256i dropAlpha =
      _mm256_setr_epi8(0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, -1, -1, -1, -1, 0, 1, 2, 4, 5, 6, 8,
                       9, 10, 12, 13, 14, -1, -1, -1, -1);
  const __m256i joinHalves = _mm256_setr_epi32(0, 1, 2, 4, 5, 6, 3, 7);
  std::size_t done = 0;
  for (; done + 8 <= pixels; done += 8) {
    const __m256i packed = _mm256_shuffle_epi8(load(rgba + 4 * done), dropAlpha);
    store(rgb + 3 * done, _mm256_permutevar8x32_epi32(packed, joinHalves));
  }
  packRgbPlain(rgba + 4 * done, pixels - done, rgb + 3 * done);
}

#endif

} // namespace

PngFilterKernels plainPngFilterKernels() {
  return {.filterAll = filterAllPlain, .packRgb = packRgbPlain};
}

PngFilterKernels bestPngFilterKernels() {
#if defined(__x86_64__)
  if (__builtin_cpu_supports("avx2")) {
    return {.filterAll = filterAllAvx2, .packRgb = packRgbAvx2};
  }
#endif
  return plainPngFilterKernels();
}

} // namespace vitrelle::host
