#include "core/colour/ColourHistogram.h"

#include "core/platform/FatalError.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <utility>

namespace vitrelle {
namespace {

constexpr std::int32_t smallestAlpha = 125;
constexpr std::int32_t nearWhiteLimit = 250;

/// Where a pixel's samples lie among its four bytes.
struct PixelLayout {
  int red, green, blue, alpha;
};
constexpr PixelLayout layoutOfPixels{.red = 3, .green = 2, .blue = 1, .alpha = 0};
constexpr PixelLayout layoutOfBitmap{.red = 0, .green = 1, .blue = 2, .alpha = 3};

/// The sample at a byte of a pixel that was read as one machine word. Signed, because the simplest
/// vector instructions compare signed numbers.
constexpr std::int32_t sample(std::uint32_t pixel, int byte) {
  const int shift = std::endian::native == std::endian::little ? 8 * byte : 24 - 8 * byte;
  return static_cast<std::int32_t>((pixel >> shift) & 0xFF);
}

/// Counts blocks of pixels. The cells of a block are computed first, in a loop without branches
/// that the compiler turns into vector code, and counted after that. Neighbouring pixels go to
/// different tables: they often share a cell, and one counter that is raised by each of them would
/// make each wait for the one before.
template <PixelLayout layout>
class Counter final {
 public:
  static constexpr std::size_t blockPixels = 512;

  explicit Counter(bool ignoreWhite) : whiteLimit_(ignoreWhite ? nearWhiteLimit : 255) {}

  /// The pixels of one row from `row` on, every `stride`th of them.
  void count(const std::uint8_t* row, std::size_t pixels, std::size_t stride) {
    std::array<std::uint32_t, blockPixels> block;
    for (std::size_t done = 0; done < pixels; done += blockPixels) {
      const std::size_t size = std::min(blockPixels, pixels - done);
      const std::uint8_t* from = row + done * stride * 4;
      if (stride == 1) {
        std::memcpy(block.data(), from, size * 4);
      } else {
        for (std::size_t i = 0; i < size; ++i)
          std::memcpy(&block[i], from + i * stride * 4, 4);
      }
      countBlock(block, size);
    }
  }

  ColourHistogram histogram() && {
    fold();
    return std::move(histogram_);
  }

 private:
  /// Pixels that don't count are counted here.
  static constexpr std::int32_t skippedCell = histogramCells;
  static constexpr std::size_t tableCount = 4;
  using Table = std::array<std::uint32_t, histogramCells + 1>;

  std::uint32_t cell(std::uint32_t pixel) const {
    const std::int32_t red = sample(pixel, layout.red);
    const std::int32_t green = sample(pixel, layout.green);
    const std::int32_t blue = sample(pixel, layout.blue);
    const bool skipped = (sample(pixel, layout.alpha) < smallestAlpha) |
                         ((red > whiteLimit_) & (green > whiteLimit_) & (blue > whiteLimit_));
    const std::int32_t counted =
        red >> sampleShift << 10 | green >> sampleShift << 5 | blue >> sampleShift;
    return static_cast<std::uint32_t>(skipped ? skippedCell : counted);
  }

  void countBlock(std::array<std::uint32_t, blockPixels>& block, std::size_t size) {
    for (std::size_t i = 0; i < size; ++i)
      block[i] = cell(block[i]);

    std::size_t i = 0;
    for (; i + tableCount <= size; i += tableCount) {
      const std::uint32_t first = block[i];
      if (first == block[i + 1] && first == block[i + 2] && first == block[i + 3]) {
        tables_[0][first] += tableCount;
      } else {
        ++tables_[0][first];
        ++tables_[1][block[i + 1]];
        ++tables_[2][block[i + 2]];
        ++tables_[3][block[i + 3]];
      }
    }
    for (; i < size; ++i)
      ++tables_[0][block[i]];

    unfolded_ += static_cast<std::uint32_t>(size);
    if (unfolded_ > UINT32_MAX - blockPixels) fold();
  }

  /// Moves the tables' counts, before one of them can overflow, to the histogram.
  void fold() {
    for (std::size_t cell = 0; cell < histogramCells; ++cell) {
      std::int64_t sum = 0;
      for (const Table& table : tables_)
        sum += table[cell];
      histogram_[cell] += sum; // never above the number of pixels, which an int64 holds
    }
    for (Table& table : tables_)
      table.fill(0);
    unfolded_ = 0;
  }

  const std::int32_t whiteLimit_;
  std::vector<Table> tables_{tableCount};
  std::uint32_t unfolded_ = 0;
  ColourHistogram histogram_ = ColourHistogram(histogramCells);
};

template <PixelLayout layout>
ColourHistogram histogram(const std::uint8_t* pixels, std::size_t width, std::size_t height,
                          std::size_t bytesPerRow, const Sampling& sampling) {
  if (sampling.stride == 0) fatalError("a sampling stride of 0");
  Counter<layout> counter(sampling.ignoreWhite);
  if (sampling.stride < 0) return std::move(counter).histogram();

  const auto stride = static_cast<std::size_t>(sampling.stride);
  std::size_t column = 0; // of the next pixel to be taken, as if all rows were one
  for (std::size_t y = 0; y < height; ++y) {
    if (column < width) {
      const std::size_t taken = (width - column - 1) / stride + 1;
      counter.count(pixels + y * bytesPerRow + column * 4, taken, stride);
      column += taken * stride; // below 2 to the 64th: the stride and the width are both below half
    }
    column -= width;
  }
  return std::move(counter).histogram();
}

} // namespace

ColourHistogram histogramOfPixels(std::span<const std::uint8_t> pixels, const Sampling& sampling) {
  return histogram<layoutOfPixels>(pixels.data(), pixels.size() / 4, 1, pixels.size(), sampling);
}

ColourHistogram histogramOfBitmap(const Bitmap& bitmap, const Sampling& sampling) {
  return histogram<layoutOfBitmap>(bitmap.pixels, static_cast<std::size_t>(bitmap.size.width),
                                   static_cast<std::size_t>(bitmap.size.height), bitmap.bytesPerRow,
                                   sampling);
}

} // namespace vitrelle
