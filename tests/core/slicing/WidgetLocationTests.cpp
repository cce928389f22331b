#include "core/slicing/WidgetLocation.h"

#include <gtest/gtest.h>

#include <limits>

namespace vitrelle {
namespace {

using enum WidgetLocationImageNames;

constexpr WidgetMeasurements fifteenPro{474, 240, 83, 540, 588};

TEST(WidgetLocation, rawValues_leadBackToTheirCases) {
  for (const WidgetLocationImageNames location : allWidgetLocations()) {
    EXPECT_EQ(widgetLocation(rawValue(location)), location) << rawValue(location);
  }
  EXPECT_EQ(allWidgetLocations().size(), 13U);
  EXPECT_EQ(rawValue(smallMiddleRight), "midRightSmall");
  for (const char* other : {"", "Original", "topleftSmall", "smallTopLeft"}) {
    EXPECT_FALSE(widgetLocation(other)) << other;
  }
}

TEST(WidgetLocation, sliceFileName_marksOnlyTheDarkStyle) {
  EXPECT_EQ(sliceFileName({0}, "original", lightStyle), "0original.png");
  EXPECT_EQ(sliceFileName({3}, rawValue(smallBottomRight), darkStyle), "3bottomRightSmallDark.png");
  EXPECT_EQ(sliceFileName({12}, rawValue(mediumMiddle), darkStyle), "12midMediumDark.png");
  EXPECT_EQ(sliceFileName({1}, "topLarge", 0), "1topLarge.png");
  EXPECT_EQ(sliceFileName({1}, "topLarge", 3), "1topLarge.png");
  EXPECT_EQ(sliceFileName({-1}, "topLarge", 3), "-1topLarge.png");
}

TEST(WidgetLocation, slotRectangles_ofAPhone) {
  const std::pair<WidgetLocationImageNames, PixelRect> cases[] = {
      {smallTopLeft, {83, 240, 474, 474}},     {smallTopRight, {623, 240, 474, 474}},
      {smallMiddleLeft, {83, 828, 474, 474}},  {smallMiddleRight, {623, 828, 474, 474}},
      {smallBottomLeft, {83, 1416, 474, 474}}, {smallBottomRight, {623, 1416, 474, 474}},
      {mediumTop, {83, 240, 1014, 474}},       {mediumMiddle, {83, 828, 1014, 474}},
      {mediumBottom, {83, 1416, 1014, 474}},   {largeTop, {83, 240, 1014, 1062}},
      {largeBottom, {83, 828, 1014, 1062}},
  };
  std::size_t slotCount = 0;
  for (const WidgetFamily family :
       {WidgetFamily::small, WidgetFamily::medium, WidgetFamily::large}) {
    for (const WidgetLocationImageNames slot : slots(family)) {
      EXPECT_EQ(slot, cases[slotCount].first);
      EXPECT_EQ(slotRectangle(slot, fifteenPro), cases[slotCount].second) << rawValue(slot);
      ++slotCount;
    }
  }
  EXPECT_EQ(slotCount, std::size(cases));
}

TEST(WidgetLocationDeathTest, overflowOrNoSlot_isFatal) {
  constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
  EXPECT_DEATH(slotRectangle(smallBottomLeft, {1, 1, 1, 1, most}), "overflow");
  EXPECT_DEATH(slotRectangle(smallTopRight, {1, 1, 1, most, 1}), "overflow");
  EXPECT_DEATH(slotRectangle(fullImage, fifteenPro), "no slot");
}

} // namespace
} // namespace vitrelle
