#include "host/drawing/Blur.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace vitrelle::host {

namespace {

constexpr int passes = 3;

/// Odd widths whose boxes together have the deviation, as near as may be: a smaller odd width as
/// often as needed, then the next one.
std::array<int, passes> boxRadii(double deviation) {
  const double ideal = std::sqrt(12 * deviation * deviation / passes + 1);
  const int small = ((static_cast<int>(ideal) - 1) | 1);
  const double smaller =
      (12 * deviation * deviation - passes * small * small - 4.0 * passes * small - 3 * passes) /
      (-4.0 * small - 4);
  const auto count = std::lround(smaller);
  std::array<int, passes> radii{};
  for (int i = 0; i < passes; ++i)
    radii[static_cast<std::size_t>(i)] = (i < count ? small : small + 2) / 2;
  return radii;
}

/// Each sample becomes the mean of those up to `radius` before and after it.
void boxBlurRow(const std::uint8_t* from, std::uint8_t* to, int count, int radius) {
  // The quotient by the box's width as a product, exact to half a step.
  const std::uint32_t width = static_cast<std::uint32_t>(2 * radius + 1);
  const std::uint32_t factor = (std::uint32_t{1} << 24) / width;
  const auto at = [&](int i) { return i >= 0 && i < count ? std::uint32_t{from[i]} : 0U; };
  std::uint32_t sum = 0;
  for (int i = -radius; i < radius; ++i)
    sum += at(i);
  for (int i = 0; i < count; ++i) {
    sum += at(i + radius);
    to[i] = static_cast<std::uint8_t>((std::uint64_t{sum} * factor + (1U << 23)) >> 24);
    sum -= at(i - radius);
  }
}

/// The same down every column at once, so that memory is walked along the rows.
void boxBlurColumns(const Mask& from, Mask& to, int radius) {
  const auto width = static_cast<std::size_t>(from.width);
  const std::uint32_t box = static_cast<std::uint32_t>(2 * radius + 1);
  const std::uint32_t factor = (std::uint32_t{1} << 24) / box;
  std::vector<std::uint32_t> sums(width, 0);
  const auto row = [&](int y) { return from.samples.data() + static_cast<std::size_t>(y) * width; };
  for (int y = 0; y < std::min(radius, from.height); ++y) {
    for (std::size_t x = 0; x < width; ++x)
      sums[x] += row(y)[x];
  }
  for (int y = 0; y < from.height; ++y) {
    const std::uint8_t* entering = y + radius < from.height ? row(y + radius) : nullptr;
    const std::uint8_t* leaving = y - radius >= 0 ? row(y - radius) : nullptr;
    std::uint8_t* out = to.row(y);
    if (entering != nullptr) {
      for (std::size_t x = 0; x < width; ++x)
        sums[x] += entering[x];
    }
    // A sum is at most 255 boxes, so the product fits 32 bits.
    for (std::size_t x = 0; x < width; ++x)
      out[x] = static_cast<std::uint8_t>((sums[x] * factor + (1U << 23)) >> 24);
    if (leaving != nullptr) {
      for (std::size_t x = 0; x < width; ++x)
        sums[x] -= leaving[x];
    }
  }
}

} // namespace

int blurReach(double deviation) {
  if (deviation <= 0) return 0;
  int reach = 0;
  for (const int radius : boxRadii(deviation))
    reach += radius;
  return reach;
}

void blur(Mask& mask, double deviation) {
  if (deviation <= 0 || mask.samples.empty()) return;
  Mask other(mask.width, mask.height);
  for (const int radius : boxRadii(deviation)) {
    for (int y = 0; y < mask.height; ++y)
      boxBlurRow(mask.row(y), other.row(y), mask.width, radius);
    boxBlurColumns(other, mask, radius);
  }
}

} // namespace vitrelle::host
