#include "host/imaging/PngFilterKernels.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

namespace vitrelle::host {
namespace {

TEST(PngFilterKernels, fastOnes_doWhatThePlainDo) {
  constexpr std::size_t padding = 64;
  std::mt19937 random(6);
  const PngFilterKernels plain = plainPngFilterKernels();
  const PngFilterKernels best = bestPngFilterKernels();
  for (std::size_t pixels = 1; pixels < 150; ++pixels) {
    for (const int bytesPerPixel : {3, 4}) {
      const std::size_t rowBytes = pixels * static_cast<std::size_t>(bytesPerPixel);
      std::vector<std::uint8_t> row(padding + rowBytes + 128);
      std::vector<std::uint8_t> above(row.size());
      for (std::size_t i = padding; i < row.size(); ++i) {
        // Close to each other, or ties and the sides of the Paeth corner would hardly occur.
        row[i] = static_cast<std::uint8_t>(random() % (pixels % 3 == 0 ? 256 : 5));
        above[i] = static_cast<std::uint8_t>(random() % (pixels % 3 == 0 ? 256 : 5));
      }
      const std::size_t stride = (rowBytes + 63) / 64 * 64;
      std::vector<std::uint8_t> expected(5 * stride + 64);
      std::vector<std::uint8_t> actual(expected.size());
      const auto sums = plain.filterAll(&row[padding], &above[padding], rowBytes, bytesPerPixel,
                                        expected.data(), stride);
      EXPECT_EQ(best.filterAll(&row[padding], &above[padding], rowBytes, bytesPerPixel,
                               actual.data(), stride),
                sums)
          << rowBytes;
      for (std::size_t filter = 0; filter < 5; ++filter) {
        const auto start = static_cast<std::ptrdiff_t>(filter * stride);
        EXPECT_TRUE(std::equal(expected.begin() + start,
                               expected.begin() + start + static_cast<std::ptrdiff_t>(rowBytes),
                               actual.begin() + start))
            << "filter " << filter << ", " << rowBytes << " bytes";
      }
    }
    std::vector<std::uint8_t> rgba(4 * pixels);
    for (std::uint8_t& sample : rgba)
      sample = static_cast<std::uint8_t>(random());
    std::vector<std::uint8_t> expected(3 * pixels + 64);
    std::vector<std::uint8_t> actual(expected.size());
    plain.packRgb(rgba.data(), pixels, expected.data());
    best.packRgb(rgba.data(), pixels, actual.data());
    expected.resize(3 * pixels);
    actual.resize(3 * pixels);
    EXPECT_EQ(actual, expected) << pixels;
  }
}

} // namespace
} // namespace vitrelle::host
