#include "core/slicing/ImageCropper.h"
#include "core/slicing/WallpaperInterface.h"

#include "tests/support/Fakes.h"
#include "tests/support/UnimplementedPlatform.h"

#include <gtest/gtest.h>

#include <limits>

namespace vitrelle {
namespace {

const std::vector<std::string> twelve = {
    "0original.png",      "0topLeftSmall.png",    "0topRightSmall.png",    "0midLeftSmall.png",
    "0midRightSmall.png", "0bottomLeftSmall.png", "0bottomRightSmall.png", "0topMedium.png",
    "0midMedium.png",     "0bottomMedium.png",    "0topLarge.png",         "0bottomLarge.png"};

class ImageCropperTest : public testing::Test {
 protected:
  ImageCropperTest() {
    folder.use(platform);
    phone.use(platform);
    console.use(platform);
    platform.bundle.identifier = [] { return std::optional<std::string>("com.example.program"); };
  }

  Platform platform = test::unimplementedPlatform();
  test::FakeFolder folder;
  test::FakePhone phone;
  test::FakeConsole console;
  ImageCropper cropper{platform};
};

TEST_F(ImageCropperTest, store_writesTheWholeThenTheSlotsInOrder) {
  const Image screenshot = test::positionImage(1179, 2556);
  const auto stored = cropper.store(screenshot, lightStyle, {0});
  EXPECT_EQ(folder.written, twelve);
  EXPECT_EQ(stored.size(), 12U);
  EXPECT_EQ(folder.images.at("0original.png"), screenshot);
  const Bitmap medium = folder.images.at("0bottomMedium.png").bitmap().value();
  EXPECT_EQ(medium.size, (PixelSize{1014, 474}));
  EXPECT_EQ(medium.row(0)[0], 83);
  EXPECT_EQ(medium.row(0)[1], 1416 % 256);
  EXPECT_EQ(medium.row(0)[2], 1416 / 256);

  EXPECT_EQ(console.reloads, 1);
  EXPECT_EQ(console.lines.size(), 2U + 3 * 3 + 1);
  EXPECT_EQ(console.lines[0], "Pixels: 1179x2556");
  EXPECT_EQ(console.lines[1], "Points: 393x852");
  EXPECT_EQ(console.lines.back(), "Storing at 0original");
}

TEST_F(ImageCropperTest, store_again_replacesAllAndSaysOriginalForTheDarkStyle) {
  cropper.store(test::positionImage(1179, 2556), darkStyle, {7});
  const Image second = test::positionImage(1179, 2556);
  cropper.store(second, darkStyle, {7});
  EXPECT_EQ(folder.images.size(), 12U);
  EXPECT_EQ(folder.images.at("7originalDark.png"), second);
  EXPECT_EQ(console.lines.back(), "Storing at 7original");
  EXPECT_EQ(console.reloads, 2);
}

TEST_F(ImageCropperTest, smallScreenshot_endsAFamilyAtItsFirstFailedSlot) {
  // The right column and the bottom row lie outside; the middle row is cut off.
  cropper.store(test::positionImage(600, 900), lightStyle, {0});
  EXPECT_EQ(folder.written,
            (std::vector<std::string>{"0original.png", "0topLeftSmall.png", "0topMedium.png",
                                      "0midMedium.png", "0topLarge.png", "0bottomLarge.png"}))
      << "the second small slot begins at 623";
  EXPECT_EQ(folder.images.at("0midMedium.png").size(), (PixelSize{517, 72}));
}

TEST_F(ImageCropperTest, unmeasuredPhone_getsTheWholeOnly) {
  phone.machine = "iPhone17,1";
  cropper.store(test::positionImage(1179, 2556), lightStyle, {0});
  EXPECT_EQ(folder.written, std::vector<std::string>{"0original.png"});
  EXPECT_EQ(console.reloads, 1);
}

TEST_F(ImageCropperTest, refusedWriteOrNoFolder_isSilentAndGoesOn) {
  folder.refused.insert("0topRightSmall.png");
  const auto stored = cropper.store(test::positionImage(1179, 2556), lightStyle, {0});
  EXPECT_EQ(folder.written.size(), 11U);
  EXPECT_FALSE(stored[2].bytes.ok());

  folder.exists = false;
  EXPECT_TRUE(cropper.store(test::positionImage(1179, 2556), lightStyle, {1}).empty());
  EXPECT_EQ(console.lines.back(), "Storing at 1original");
  EXPECT_EQ(console.reloads, 2);
}

TEST_F(ImageCropperTest, familiesAndSave_workAlone) {
  const Image screenshot = test::positionImage(1179, 2556);
  cropper.cropLarge(screenshot, 3, {4});
  cropper.cropMedium(screenshot, darkStyle, {4});
  cropper.cropSmall(screenshot, lightStyle, {4});
  cropper.save(screenshot, "overlayImage4");
  EXPECT_EQ(folder.written.front(), "4topLarge.png");
  EXPECT_EQ(folder.written[2], "4topMediumDark.png");
  EXPECT_EQ(folder.written.back(), "overlayImage4.png");
  EXPECT_EQ(folder.written.size(), 2U + 3 + 6 + 1);
  EXPECT_EQ(console.reloads, 0);
}

TEST_F(ImageCropperTest, screenResolution_truncatesAndRefusesWhatIsNoInteger) {
  phone.bounds = {375.9, 812.2};
  EXPECT_EQ(cropper.screenResolution(), "1127x2436");
  EXPECT_EQ(console.lines.back(), "Points: 375x812");
  for (const double width :
       {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(), 1e300}) {
    phone.bounds.width = width;
    EXPECT_DEATH(cropper.screenResolution(), "no 64-bit integer") << width;
  }
}

TEST_F(ImageCropperTest, wallpaperInterface_remembersByStyleAndReadsBack) {
  const auto wallpaper = WallpaperInterface::shared(platform);
  EXPECT_EQ(wallpaper, WallpaperInterface::shared(platform));
  const Image light = test::positionImage(1179, 2556);
  const Image other = test::positionImage(1179, 2556);
  wallpaper->setImage(light, lightStyle, {2});
  EXPECT_EQ(wallpaper->lightImage(), light);
  EXPECT_FALSE(wallpaper->darkImage());
  wallpaper->setImage(other, 0, {2});
  EXPECT_EQ(wallpaper->lightImage(), light) << "a style of no name is not remembered";
  using enum WidgetLocationImageNames;
  EXPECT_EQ(wallpaper->image(fullImage, ColorScheme::light, {2}), other) << "but stored as light";
  EXPECT_FALSE(wallpaper->image(fullImage, ColorScheme::dark, {2})) << "nothing stands in for dark";
  EXPECT_TRUE(wallpaper->image(largeBottom, InterfaceStyle{9}, {2}));
  EXPECT_FALSE(wallpaper->image(WidgetLocationImageNames::error, lightStyle, {2}));

  const auto replacement = std::make_shared<WallpaperInterface>(platform);
  WallpaperInterface::replaceShared(platform, replacement);
  EXPECT_EQ(WallpaperInterface::shared(platform), replacement);
}

} // namespace
} // namespace vitrelle
