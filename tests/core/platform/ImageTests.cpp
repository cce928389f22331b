#include "core/platform/Image.h"

#include "tests/support/Fakes.h"

#include <gtest/gtest.h>

#include <limits>

namespace vitrelle {
namespace {

constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();

TEST(Image, cropped_isTheRectangleCutToTheBitmap) {
  const Image image = test::positionImage(300, 20);
  struct Case {
    PixelRect rect;
    std::optional<PixelRect> expected;
  };
  const Case cases[] = {
      {{10, 5, 20, 10}, PixelRect{10, 5, 20, 10}},
      {{-5, -5, 10, 10}, PixelRect{0, 0, 5, 5}},
      {{290, 15, 100, 100}, PixelRect{290, 15, 10, 5}},
      {{257, 0, most, most}, PixelRect{257, 0, 43, 20}},
      {{-most, -most, most, most}, std::nullopt},
      {{300, 0, 1, 1}, std::nullopt},
      {{0, 20, 1, 1}, std::nullopt},
      {{5, 5, 0, 5}, std::nullopt},
      {{5, 5, 5, -1}, std::nullopt},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(testing::Message()
                 << c.rect.x << ',' << c.rect.y << ' ' << c.rect.width << 'x' << c.rect.height);
    const std::optional<Image> part = image.cropped(c.rect);
    ASSERT_EQ(part.has_value(), c.expected.has_value());
    if (!part) continue;
    EXPECT_EQ(part->size().width, c.expected->width);
    EXPECT_EQ(part->size().height, c.expected->height);
    const Bitmap bitmap = part->bitmap().value();
    EXPECT_EQ(bitmap.row(0)[0], c.expected->x % 256);
    EXPECT_EQ(bitmap.row(0)[1], c.expected->y);
    EXPECT_EQ(bitmap.row(0)[2], c.expected->x / 256 * 16);
  }
}

TEST(Image, croppedOfCropped_keepsProfileAndPixelsAlive) {
  ColourProfile profile;
  profile.gamma = 45455;
  std::optional<Image> part;
  {
    const Image image = test::positionImage(100, 100, profile);
    part = image.cropped({10, 10, 50, 50})->cropped({5, 6, 2, 2});
  }
  ASSERT_TRUE(part);
  EXPECT_EQ(part->profile(), profile);
  EXPECT_EQ(part->bitmap()->row(1)[4], 16);
  EXPECT_EQ(part->bitmap()->row(1)[5], 17);
}

TEST(Image, equality_isIdentity) {
  const Image one = test::positionImage(2, 2);
  const Image same = one;
  EXPECT_EQ(one, same);
  EXPECT_NE(one, test::positionImage(2, 2));
}

} // namespace
} // namespace vitrelle
