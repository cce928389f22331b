// Takes the filters off the rows of a PNG picture.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vitrelle::host {

/// The rows as the file has them: each one byte of filter number, then 8-bit samples.
struct FilteredRows {
  const std::uint8_t* rows = nullptr;
  std::size_t bytesPerRow = 0; ///< with the filter number
  std::size_t width = 0;       ///< in pixels
  std::size_t height = 0;
  int bytesPerPixel = 0; ///< 3 (RGB) or 4 (RGBA)
};

/// Unfilters the rows of one picture from top to bottom, as they come. For one thread.
class PngUnfilter final {
 public:
  /// Writes RGBA rows to `out`, `outBytesPerRow` apart; alpha is 255 where the file has none. RGBA
  /// rows may be written over themselves: `out` one byte behind `rows`, at the same distance.
  PngUnfilter(const FilteredRows& filtered, std::uint8_t* out, std::size_t outBytesPerRow);

  /// Does the rows before `end`, save that an odd one may wait for its neighbour until `end` is
  /// the height. False when a filter's number is not known.
  bool advance(std::size_t end);

  /// Whether every alpha sample so far is 255.
  bool isOpaque() const;

 private:
  template <int bytesPerPixel>
  bool advanceRows(std::size_t end);

  FilteredRows filtered_;
  std::uint8_t* out_;
  std::size_t outBytesPerRow_;
  std::size_t next_ = 0; ///< row
  std::vector<std::uint8_t> zeros_;
  const std::uint8_t* above_; ///< the row before the next, unfiltered
  std::uint32_t alpha_;
};

} // namespace vitrelle::host
