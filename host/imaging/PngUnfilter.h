// Takes the filters off the rows of a PNG picture.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

namespace vitrelle::host {

/// The rows as the file has them: each one byte of filter number, then 8-bit samples.
struct FilteredRows {
  const std::uint8_t* rows = nullptr;
  std::size_t bytesPerRow = 0; ///< with the filter number
  std::size_t width = 0;       ///< in pixels
  std::size_t height = 0;
  int bytesPerPixel = 0; ///< 3 (RGB) or 4 (RGBA)
};

/// Writes RGBA rows to `out`, `outBytesPerRow` apart; alpha is 255 where the file has none. RGBA
/// rows may be written over themselves: `out` one byte behind `rows`, at the same distance.
/// Gives whether every alpha sample is 255; nothing when a filter's number is not known. Up to 16
/// bytes behind the last row are read.
std::optional<bool> unfilter(const FilteredRows& filtered, std::uint8_t* out,
                             std::size_t outBytesPerRow);

} // namespace vitrelle::host
