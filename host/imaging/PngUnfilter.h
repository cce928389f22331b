// Takes the filters off the rows of a PNG picture.
#pragma once

#include <cstddef>
#include <cstdint>

namespace vitrelle::host {

/// The rows as the file has them: each one byte of filter number, then 8-bit samples.
struct FilteredRows {
  const std::uint8_t* rows = nullptr;
  std::size_t bytesPerRow = 0; ///< with the filter number
  std::size_t width = 0;       ///< in pixels
  std::size_t height = 0;
  int bytesPerPixel = 0; ///< 3 (RGB) or 4 (RGBA)
};

enum class Unfiltered {
  damaged, ///< a filter's number is not known
  opaque,  ///< every alpha sample is 255
  seeThrough,
};

/// How far behind the unfiltered rows' end filtered RGB rows end that are written over: two rows
/// are worked on at a time.
constexpr std::size_t rgbHeadStart(std::size_t width) {
  return 4 * width;
}

/// Writes RGBA rows to `out`, `outBytesPerRow` apart; alpha is 255 where the file has none. They
/// may take the place of the filtered ones: RGBA samples where they were, RGB rows without gaps and
/// with the head start.
Unfiltered unfilter(const FilteredRows& filtered, std::uint8_t* out, std::size_t outBytesPerRow);

} // namespace vitrelle::host
