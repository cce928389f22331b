#include "host/imaging/PngFilter.h"

#include "host/imaging/PngFilterKernels.h"

#include <algorithm>
#include <cstring>

namespace vitrelle::host {

namespace {

/// Kernels work in steps of this many bytes and may write that far beyond a row.
constexpr std::size_t widestStep = 64;

std::size_t residualStride(std::size_t rowBytes) {
  return (rowBytes + widestStep - 1) / widestStep * widestStep + widestStep;
}

} // namespace

PngRowFilter::PngRowFilter(std::size_t rowBytes, int bytesPerPixel)
    : rowBytes_(rowBytes),
      bytesPerPixel_(bytesPerPixel),
      row_(padding + residualStride(rowBytes)),
      above_(row_.size()),
      residuals_(5 * residualStride(rowBytes)) {}

void PngRowFilter::filter(const std::uint8_t* rgbaRow, std::uint8_t* out) {
  static const PngFilterKernels kernels = bestPngFilterKernels();
  std::uint8_t* row = packed(row_);
  if (bytesPerPixel_ == 3) {
    kernels.packRgb(rgbaRow, rowBytes_ / 3, row);
  } else {
    std::memcpy(row, rgbaRow, rowBytes_);
  }

  const std::size_t stride = residualStride(rowBytes_);
  const PngFilterSums sums =
      kernels.filterAll(row, packed(above_), rowBytes_, bytesPerPixel_, residuals_.data(), stride);
  const auto best = static_cast<std::size_t>(std::ranges::min_element(sums) - sums.begin());
  out[0] = static_cast<std::uint8_t>(best);
  std::memcpy(out + 1, residuals_.data() + best * stride, rowBytes_);
  std::swap(row_, above_);
}

} // namespace vitrelle::host
