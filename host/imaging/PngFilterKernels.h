// The inner loops of filtering, in the widest form that the processor has.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace vitrelle::host {

/// For each of the five filters in their numbers' order (none, sub, up, average, Paeth), the sum
/// of the absolute values of a row's residuals as signed bytes.
using PngFilterSums = std::array<std::uint64_t, 5>;

struct PngFilterKernels {
  /// Applies all five filters at once. Both rows have `bytesPerPixel` zeros to their left and may
  /// be read, and the residuals written, up to the next multiple of 64 bytes. Residuals of filter n
  /// go to `residuals + n * stride`.
  PngFilterSums (*filterAll)(const std::uint8_t* row, const std::uint8_t* above,
                             std::size_t rowBytes, int bytesPerPixel, std::uint8_t* residuals,
                             std::size_t stride);
  /// Drops the alpha samples. May write up to 64 bytes too many.
  void (*packRgb)(const std::uint8_t* rgba, std::size_t pixels, std::uint8_t* rgb);
};

/// Those that every processor can run, and the yardstick for the others.
PngFilterKernels plainPngFilterKernels();
/// The fastest for this processor.
PngFilterKernels bestPngFilterKernels();

} // namespace vitrelle::host
