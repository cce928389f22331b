#include "host/imaging/Resize.h"

#include "host/imaging/ParallelWork.h"
#include "host/imaging/PictureBounds.h"
#include "host/imaging/PixelBuffer.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>
#include <vector>

namespace vitrelle::host {

namespace {

/// Red, green and blue times alpha, and alpha, each 0 to 255; worked on as one.
using Pixel = float __attribute__((vector_size(16)));
using Row = std::vector<Pixel>;

/// How far the filter reaches to either side, in pixels of the coarser picture.
constexpr double reach = 2;

double mitchell(double distance) {
  const double x = std::abs(distance);
  if (x < 1) return ((7 * x - 12) * x * x + 16.0 / 3) / 6;
  if (x < reach) return (((-7.0 / 3 * x + 12) * x - 20) * x + 32.0 / 3) / 6;
  return 0;
}

/// The pixels of one direction that a pixel of the result is made of.
struct Taps {
  std::int32_t first = 0;
  std::vector<float> weights; ///< their sum is 1
};

std::vector<Taps> filterTaps(std::int32_t from, std::int32_t to) {
  const double step = static_cast<double>(from) / to;
  const double width = std::max(step, 1.0);
  std::vector<Taps> all(static_cast<std::size_t>(to));
  if (from == to) { // as it is: a filter would blur it each time anew
    for (std::int32_t i = 0; i < to; ++i)
      all[static_cast<std::size_t>(i)] = {i, {1}};
    return all;
  }
  for (std::size_t i = 0; i < all.size(); ++i) {
    const double centre = (static_cast<double>(i) + 0.5) * step - 0.5;
    const auto first = std::max(std::ceil(centre - reach * width), 0.0);
    const auto last = std::min(std::floor(centre + reach * width), from - 1.0);
    double sum = 0;
    for (double at = first; at <= last; ++at)
      sum += mitchell((at - centre) / width);
    Taps& taps = all[i];
    taps.first = static_cast<std::int32_t>(first);
    for (double at = first; at <= last; ++at)
      taps.weights.push_back(static_cast<float>(mitchell((at - centre) / width) / sum));
  }
  return all;
}

Pixel weighted(const std::uint8_t* rgba, float weight) {
  const Pixel pixel = {static_cast<float>(rgba[0]), static_cast<float>(rgba[1]),
                       static_cast<float>(rgba[2]), 255};
  return pixel * (static_cast<float>(rgba[3]) * (weight / 255));
}

/// As near as a pixel can be: sums overshoot beside hard edges.
Pixel possible(Pixel sum) {
  if (sum[3] > 255) sum *= 255 / sum[3];
  sum = sum < 0 ? Pixel{} : sum;
  const Pixel alpha = Pixel{} + sum[3];
  return sum > alpha ? alpha : sum;
}

void store(Pixel pixel, std::uint8_t* rgba) {
  using Whole = std::int32_t __attribute__((vector_size(16)));
  const float alpha = pixel[3];
  pixel *= alpha < 0.5F ? 0 : 255 / alpha;
  pixel[3] = alpha;
  const auto rounded = __builtin_convertvector(pixel + 0.5F, Whole);
  for (int i = 0; i < 4; ++i)
    rgba[i] = static_cast<std::uint8_t>(rounded[i]);
}

/// Some rows of the source made one.
void addUp(const Bitmap& source, const Taps& rows, Row& sum) {
  std::ranges::fill(sum, Pixel{});
  std::int32_t y = rows.first;
  for (const float weight : rows.weights) {
    const std::uint8_t* from = source.row(y++);
    for (std::size_t x = 0; x < sum.size(); ++x)
      sum[x] += weighted(from + 4 * x, weight);
  }
  std::ranges::transform(sum, sum.begin(), possible);
}

/// Pixels of a row made one, for each of the result's.
void fold(const Row& row, const std::vector<Taps>& columns, std::uint8_t* to) {
  for (const Taps& column : columns) {
    Pixel sum{};
    const Pixel* from = row.data() + column.first;
    for (const float weight : column.weights)
      sum += weight * *from++;
    store(possible(sum), to);
    to += 4;
  }
}

} // namespace

Result<Bitmap> resizeBitmap(const Bitmap& source, const PixelSize& size) {
  if (source.size.width <= 0 || source.size.height <= 0)
    return Failure{"picture", "the picture has no pixels"};
  if (!withinBounds(size.width, size.height)) {
    return Failure{"picture", std::to_string(size.width) + " by " + std::to_string(size.height) +
                                  " pixels are more than a picture can have"};
  }
  const std::size_t rowBytes = static_cast<std::size_t>(size.width) * 4;
  const auto pixels = allocatePixels(rowBytes * static_cast<std::size_t>(size.height));
  if (!pixels) return Failure{"picture", "not enough memory"};

  const std::vector<Taps> columns = filterTaps(source.size.width, size.width);
  const std::vector<Taps> rows = filterTaps(source.size.height, size.height);
  inParallel(rows.size(), [&] {
    return [&, flat = Row(static_cast<std::size_t>(source.size.width))](std::size_t y) mutable {
      addUp(source, rows[y], flat);
      fold(flat, columns, pixels.get() + y * rowBytes);
    };
  });
  return Bitmap{.size = size,
                .bytesPerRow = rowBytes,
                .pixels = pixels.get(),
                .opaque = source.opaque,
                .owner = pixels};
}

} // namespace vitrelle::host
