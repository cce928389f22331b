// The choice of a filter for each row of a PNG picture.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vitrelle::host {

/// Filters the rows of one picture from top to bottom. Each row gets the one of the five filters
/// whose residuals, as signed bytes, have the least sum of absolute values. For one thread.
class PngRowFilter final {
 public:
  /// `bytesPerPixel` is 3 or 4; `rowBytes` a multiple of it. The pictures handed over are RGBA
  /// either way: with 3 the alpha samples are dropped.
  PngRowFilter(std::size_t rowBytes, int bytesPerPixel);

  /// Writes the filter's number and the residuals, 1 + rowBytes bytes, to `out`.
  void filter(const std::uint8_t* rgbaRow, std::uint8_t* out);

 private:
  std::uint8_t* packed(std::vector<std::uint8_t>& row) { return row.data() + padding; }

  /// Zeros to the left of a row, which stand for the pixels before the first.
  static constexpr std::size_t padding = 64;

  std::size_t rowBytes_;
  int bytesPerPixel_;
  std::vector<std::uint8_t> row_;
  std::vector<std::uint8_t> above_;
  std::vector<std::uint8_t> residuals_; ///< of the five filters, one after the other
};

} // namespace vitrelle::host
