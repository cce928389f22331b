#include "core/slicing/SlotOverview.h"

#include "tests/support/Fakes.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace vitrelle {
namespace {

TEST(SlotOverview, drawsInsideTheSlotsOnly) {
  const Image screenshot = test::positionImage(1179, 2556);
  const auto overview = slotOverview(screenshot, {474, 240, 83, 540, 588});
  ASSERT_TRUE(overview);
  const Bitmap before = screenshot.bitmap().value();
  const Bitmap after = overview->bitmap().value();
  const auto same = [&](std::int32_t x, std::int32_t y, std::int32_t count) {
    const auto* row = before.row(y) + 4 * x;
    return std::equal(row, row + 4 * count, after.row(y) + 4 * x);
  };
  for (std::int32_t y = 0; y < 2556; ++y) {
    const bool inSlots = y >= 240 && y < 1416 + 474;
    ASSERT_TRUE(same(0, y, inSlots ? 83 : 1179)) << "row " << y;
    ASSERT_TRUE(same(83 + 1014, y, 1179 - 83 - 1014)) << "row " << y;
  }
  EXPECT_FALSE(same(83, 477, 474)) << "a small slot's middle row";
  EXPECT_FALSE(same(590, 246, 20)) << "the upper edge of the medium and large ones";
}

TEST(SlotOverview, screenshotOfAnySize_isDrawnAsFarAsItGoes) {
  EXPECT_TRUE(slotOverview(test::positionImage(1, 1), {474, 240, 83, 540, 588}));
  EXPECT_TRUE(slotOverview(test::positionImage(600, 300), {474, 240, 83, 540, 588}));
}

} // namespace
} // namespace vitrelle
