#include "core/colour/ColourHistogram.h"

#include "core/platform/FatalError.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <bit>
#include <cstring>
#include <functional>
#include <future>
#include <limits>
#include <system_error>
#include <thread>
#include <utility>

namespace vitrelle {
namespace {

constexpr std::uint32_t smallestAlpha = 125;
constexpr std::uint32_t nearWhiteLimit = 250;
/// From so many pixels on, a second thread gains more than its start costs.
constexpr std::size_t worthwhilePixels = 500'000;
/// Rows that a thread takes at a time: few, so that a thread whose core is busy keeps nobody.
constexpr std::size_t bandRows = 256;

/// Where a pixel's samples lie among its four bytes.
struct PixelLayout {
  int red, green, blue, alpha;
};
constexpr PixelLayout layoutOfPixels{.red = 3, .green = 2, .blue = 1, .alpha = 0};
constexpr PixelLayout layoutOfBitmap{.red = 0, .green = 1, .blue = 2, .alpha = 3};

/// How far to the left a byte of a pixel lies once the pixel was read as a machine word.
constexpr int shiftOf(int byte) {
  return std::endian::native == std::endian::little ? 8 * byte : 24 - 8 * byte;
}

std::uint32_t load(const std::uint8_t* pixel) {
  std::uint32_t word;
  std::memcpy(&word, pixel, sizeof word);
  return word;
}

/// Tells the cell of a pixel. The samples are looked at in one word, without branches, so that the
/// compiler makes vector code of a loop over pixels on any processor.
template <PixelLayout layout>
class CellFinder final {
 public:
  /// The cell that stands for "does not count".
  static constexpr std::uint32_t skipped = histogramCells;

  explicit CellFinder(bool ignoreWhite)
      : raise_((128 - smallestAlpha) << shiftOf(layout.alpha) |
               (ignoreWhite ? (127 - nearWhiteLimit % 128) * colourOnes : 0)) {}

  std::uint32_t operator()(std::uint32_t pixel) const {
    // Adding to the low 7 bits of each sample carries into its top bit, and no further, where they
    // reach a limit. A colour sample is above its limit when its own top bit is set as well, an
    // alpha sample reaches the limit with either.
    const std::uint32_t raised = (pixel & 0x7F7F7F7F) + raise_;
    const bool nearWhite = (raised & pixel & colourTops) == colourTops;
    const bool transparent = ((raised | pixel) & alphaTop) == 0;
    return (nearWhite | transparent) ? skipped : cellOfColour(pixel);
  }

  /// Finds the cells of pixels one after the other in memory. Whether all of them count is nearly
  /// always plain from two rough signs, which cost half of the close look at each of them.
  template <std::size_t size>
  void find(const std::uint8_t* pixels, std::array<std::uint32_t, size>& cells) const {
    std::uint32_t commonBits = ~std::uint32_t{0};
    std::uint32_t whitish = 0;
    for (std::size_t i = 0; i < size; ++i) {
      const std::uint32_t pixel = load(pixels + i * 4);
      commonBits &= pixel;
      cells[i] = cellOfColour(pixel);
      whitish |= static_cast<std::uint32_t>(cells[i] == histogramCells - 1);
    }
    if (whitish == 0 && (commonBits & alphaTop) != 0) return;
    for (std::size_t i = 0; i < size; ++i)
      cells[i] = (*this)(load(pixels + i * 4));
  }

 private:
  static constexpr std::uint32_t colourOnes =
      1u << shiftOf(layout.red) | 1u << shiftOf(layout.green) | 1u << shiftOf(layout.blue);
  static constexpr std::uint32_t colourTops = colourOnes << 7;
  static constexpr std::uint32_t alphaTop = 1u << shiftOf(layout.alpha) << 7;

  static constexpr std::uint32_t coordinate(std::uint32_t pixel, int byte) {
    return pixel >> (shiftOf(byte) + sampleShift) & (coordinatesPerChannel - 1);
  }
  static constexpr std::uint32_t cellOfColour(std::uint32_t pixel) {
    return coordinate(pixel, layout.red) << 10 | coordinate(pixel, layout.green) << 5 |
           coordinate(pixel, layout.blue);
  }

  std::uint32_t raise_;
};

/// Counts blocks of pixels: at once when all are alike, as on a plain background. Otherwise the
/// cells are found first and counted after that, neighbours in different tables: they often share a
/// cell, and raising one counter again and again would make each step wait for the one before.
template <PixelLayout layout>
class Counter final {
 public:
  explicit Counter(bool ignoreWhite) : cellOf_(ignoreWhite) {}

  /// Every `stride`th pixel from `row` on, so many of them.
  void count(const std::uint8_t* row, std::size_t pixels, std::size_t stride) {
    std::array<std::uint8_t, blockPixels * 4> gathered;
    std::size_t done = 0;
    for (; done + blockPixels <= pixels; done += blockPixels) {
      const std::uint8_t* block = row + done * stride * 4;
      if (stride != 1) {
        for (std::size_t i = 0; i < blockPixels; ++i) {
          std::memcpy(&gathered[i * 4], block + i * stride * 4, 4);
        }
        block = gathered.data();
      }
      countBlock(block);
      noteCounted(blockPixels);
    }
    noteCounted(pixels - done);
    for (; done < pixels; ++done)
      ++tables_[0][cellOf_(load(row + done * stride * 4))];
  }

  ColourHistogram histogram() && {
    fold();
    return std::move(histogram_);
  }

 private:
  static constexpr std::size_t blockPixels = 32;
  static constexpr std::size_t tableCount = 2;
  using Table = std::array<std::uint32_t, CellFinder<layout>::skipped + 1>;

  static bool allAlike(const std::uint8_t* block) {
    const std::uint32_t first = load(block);
    if (first != load(block + (blockPixels - 1) * 4)) return false;
    std::uint32_t difference = 0;
    for (std::size_t i = 0; i < blockPixels; ++i)
      difference |= load(block + i * 4) ^ first;
    return difference == 0;
  }

  void countBlock(const std::uint8_t* block) {
    if (allAlike(block)) {
      tables_[0][cellOf_(load(block))] += blockPixels;
      return;
    }
    std::array<std::uint32_t, blockPixels> cells;
    cellOf_.find(block, cells);
    for (std::size_t i = 0; i < blockPixels; i += tableCount) {
      for (std::size_t j = 0; j < tableCount; ++j)
        ++tables_[j][cells[i + j]];
    }
  }

  /// Empties the tables well before one of their counters could overflow.
  void noteCounted(std::size_t pixels) {
    unfolded_ += static_cast<std::uint32_t>(pixels);
    if (unfolded_ > std::numeric_limits<std::uint32_t>::max() / 2) fold();
  }

  /// Moves the tables' counts to the histogram.
  void fold() {
    for (std::size_t cell = 0; cell < histogramCells; ++cell) {
      for (const Table& table : tables_)
        histogram_[cell] += table[cell];
    }
    for (Table& table : tables_)
      table.fill(0);
    unfolded_ = 0;
  }

  CellFinder<layout> cellOf_;
  std::vector<Table> tables_{tableCount};
  std::uint32_t unfolded_ = 0;
  ColourHistogram histogram_ = ColourHistogram(histogramCells);
};

struct Rows {
  const std::uint8_t* pixels;
  std::size_t width, height, bytesPerRow;
};

/// Of the bands of rows that nobody else has taken; the next free one is `nextBand`.
template <PixelLayout layout>
ColourHistogram histogramOfBands(const Rows& rows, const Sampling& sampling,
                                 std::atomic<std::size_t>& nextBand) {
  Counter<layout> counter(sampling.ignoreWhite);
  const auto stride = static_cast<std::size_t>(sampling.stride);
  for (std::size_t y = nextBand++ * bandRows; y < rows.height; y = nextBand++ * bandRows) {
    const std::size_t end = std::min(y + bandRows, rows.height);
    // Of the next pixel to be taken, as if all rows were one.
    std::size_t column = (stride - y * rows.width % stride) % stride;
    for (; y < end; ++y) {
      if (column < rows.width) {
        const std::size_t taken = (rows.width - column - 1) / stride + 1;
        counter.count(rows.pixels + y * rows.bytesPerRow + column * 4, taken, stride);
        // Below 2 to the 64th: the stride and the width are both below half.
        column += taken * stride;
      }
      column -= rows.width;
    }
  }
  return std::move(counter).histogram();
}

template <PixelLayout layout>
ColourHistogram histogram(const Rows& rows, const Sampling& sampling) {
  if (sampling.stride == 0) fatalError("a sampling stride of 0");
  if (sampling.stride < 0) return ColourHistogram(histogramCells);
  std::atomic<std::size_t> nextBand{0};
  const auto count = [&] { return histogramOfBands<layout>(rows, sampling, nextBand); };
  std::future<ColourHistogram> others;
  const std::size_t taken = rows.width * rows.height / static_cast<std::size_t>(sampling.stride);
  if (taken >= worthwhilePixels && std::thread::hardware_concurrency() > 1) {
    try {
      others = std::async(std::launch::async, count);
    } catch (const std::system_error&) {
      // The system has no more threads; this one counts all rows.
    }
  }
  ColourHistogram counts = count();
  if (others.valid()) std::ranges::transform(counts, others.get(), counts.begin(), std::plus());
  return counts;
}

} // namespace

ColourHistogram histogramOfPixels(std::span<const std::uint8_t> pixels, const Sampling& sampling) {
  return histogram<layoutOfPixels>({pixels.data(), pixels.size() / 4, 1, pixels.size()}, sampling);
}

ColourHistogram histogramOfBitmap(const Bitmap& bitmap, const Sampling& sampling) {
  return histogram<layoutOfBitmap>({bitmap.pixels, static_cast<std::size_t>(bitmap.size.width),
                                    static_cast<std::size_t>(bitmap.size.height),
                                    bitmap.bytesPerRow},
                                   sampling);
}

} // namespace vitrelle
