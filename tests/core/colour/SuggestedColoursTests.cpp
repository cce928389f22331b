#include "core/colour/SuggestedColours.h"

#include "tests/support/Fakes.h"

#include <gtest/gtest.h>

namespace vitrelle {
namespace {

Image flat(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
  const auto pixels = std::make_shared<std::vector<std::uint8_t>>();
  for (int i = 0; i < 64; ++i)
    pixels->insert(pixels->end(), {red, green, blue, 255});
  return Image(Bitmap{.size = {8, 8},
                      .bytesPerRow = 32,
                      .pixels = pixels->data(),
                      .opaque = true,
                      .owner = pixels});
}

TEST(SuggestedColours, everyWallpaper_givesFiveSwatches) {
  SuggestedColours suggested;
  suggested.workOut(test::positionImage(64, 64), 5);
  EXPECT_TRUE(suggested.loaded());
  EXPECT_EQ(suggested.palleteColours().size(), 5U);
  for (const PlatformColour& colour : suggested.palleteColours())
    EXPECT_EQ(colour.alpha, 1);
  suggested.workOut(test::positionImage(64, 64), 5);
  EXPECT_EQ(suggested.palleteColours().size(), 10U) << "a second run adds to the first";
}

TEST(SuggestedColours, fewColours_areFilledUpWithWhite) {
  SuggestedColours ofBattery;
  ofBattery.workOut(test::positionImage(200, 200), suggestingEditor("battery")->coloursAsked);
  EXPECT_EQ(ofBattery.palleteColours()[4], (PlatformColour{1, 1, 1, 1}));
  SuggestedColours ofFlat;
  ofFlat.workOut(flat(255, 0, 0), 5);
  EXPECT_GT(ofFlat.palleteColours()[0].red, 0.9);
}

TEST(SuggestedColours, imageWithoutPixels_keepsTheSpinner) {
  SuggestedColours suggested;
  suggested.workOut(Image(Bitmap{}), 5);
  EXPECT_FALSE(suggested.loaded());
  EXPECT_TRUE(suggested.palleteColours().empty());
  EXPECT_FALSE(suggestingEditor("image"));
}

} // namespace
} // namespace vitrelle
