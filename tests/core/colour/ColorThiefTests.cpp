#include "core/colour/ColorThief.h"
#include "tests/support/Fakes.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace vitrelle {
namespace {

/// An image whose pixels can't be had.
class Undecodable final : public ImageSource {
 public:
  PixelSize size() const override { return {10, 10}; }
  const ColourProfile& profile() const override { return profile_; }
  Result<Bitmap> bitmap() const override { return Failure{"picture.png", "it is damaged"}; }

 private:
  ColourProfile profile_;
};

/// The rows of the image, packed, in the quantiser's own order of bytes.
std::vector<std::uint8_t> packed(const Image& image) {
  const Bitmap bitmap = image.bitmap().value();
  std::vector<std::uint8_t> bytes;
  for (std::int32_t y = 0; y < bitmap.size.height; ++y) {
    for (std::int32_t x = 0; x < bitmap.size.width; ++x) {
      const std::uint8_t* pixel = bitmap.row(y) + 4 * x;
      bytes.insert(bytes.end(), {pixel[3], pixel[2], pixel[1], pixel[0]});
    }
  }
  return bytes;
}

TEST(ColorThief, imageWithoutBitmap_givesNothing) {
  const Image image(std::make_shared<Undecodable>());
  EXPECT_FALSE(ColorThief::dominantColor(image));
  EXPECT_FALSE(ColorThief::colorMap(image, 5));
  EXPECT_FALSE(ColorThief::palette(image, 5));
}

TEST(ColorThief, colourCountOutOfRange_givesNothing) {
  EXPECT_FALSE(ColorThief::palette(test::positionImage(8, 8), 1));
  EXPECT_FALSE(ColorThief::palette(test::positionImage(8, 8), 257));
}

TEST(ColorThief, viewIntoAnImage_countsItsOwnPixelsOnly) {
  // Rows lie apart and the stride runs across them.
  const Image view = test::positionImage(200, 150).cropped({31, 17, 101, 77}).value();
  const auto bytes = packed(view);
  for (const std::int64_t quality : {1, 2, 10, 100, 101, 102, 5000, 100'000}) {
    EXPECT_EQ(ColorThief::palette(view, 12, quality, false),
              MMCQ::quantize(bytes, quality, false, 12)->paletteColors())
        << "quality " << quality;
  }
}

TEST(ColorThief, manyRows_countAsOneLongRow) {
  // So many that threads share them.
  constexpr std::int32_t width = 1001;
  constexpr std::int32_t height = 601;
  std::vector<std::uint8_t> pixels(std::size_t{4} * width * height);
  std::uint32_t state = 1;
  for (std::uint8_t& sample : pixels)
    sample = static_cast<std::uint8_t>((state = state * 1664525 + 1013904223) >> 24);
  const Bitmap bitmap{.size = {width, height},
                      .bytesPerRow = 4 * width,
                      .pixels = pixels.data(),
                      .opaque = false,
                      .owner = nullptr};
  std::vector<std::uint8_t> reversed = pixels;
  for (std::size_t i = 0; i < reversed.size(); i += 4)
    std::reverse(&reversed[i], &reversed[i] + 4);
  for (const std::int64_t stride : {1, 7, 1000, 1001, 3000}) {
    EXPECT_EQ(histogramOfBitmap(bitmap, {.stride = stride}),
              histogramOfPixels(reversed, {.stride = stride}))
        << stride;
  }
}

TEST(ColorThief, dominantColour_isTheFirstOfFive) {
  const Image image = test::positionImage(120, 90);
  EXPECT_EQ(ColorThief::dominantColor(image), ColorThief::palette(image, 5)->front());
  EXPECT_EQ(ColorThief::palette(image, 5), ColorThief::palette(image, 5, 10, true));
}

TEST(ColorThief, straightAlpha_countsTheColourItself) {
  // Half-transparent red and, twice as often, a fully transparent blue.
  static constexpr std::uint8_t pixels[] = {200, 0, 0, 125, 0, 0, 200, 0, 0, 0, 200, 124};
  const Image image(Bitmap{.size = {3, 1}, .bytesPerRow = 12, .pixels = pixels, .owner = nullptr});
  EXPECT_EQ(ColorThief::palette(image, 5, 1), (std::vector<MMCQ::Color>{{204, 4, 4}}));
}

TEST(ColorThief, platformColour_isInUnitsOfOne) {
  const MMCQ::Color colour{255, 51, 0};
  EXPECT_EQ(colour.platformColour(), (PlatformColour{1.0, 51 / 255.0, 0.0, 1.0}));
}

} // namespace
} // namespace vitrelle
