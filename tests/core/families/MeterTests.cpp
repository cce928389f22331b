#include "core/families/battery/Meter.h"

#include "core/drawing/Describe.h"
#include "tests/support/Fakes.h"
#include "tests/support/UnimplementedPlatform.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace vitrelle {
namespace {

constexpr PlatformColour green{0, 1, 0, 1};
constexpr PlatformColour dark{0, 0, 0, 1};
constexpr float endless = std::numeric_limits<float>::infinity();

class MeterTest : public testing::Test {
 protected:
  MeterTest() { test::FakeDrawing::use(platform); }
  std::string drawn(const View& view) {
    return describe(layOut(view, {132, 132}, platform.drawing));
  }
  static Meter ring(float level) {
    return {level, green, dark, dark, "iphone", true, "Helvetica", true};
  }

  Platform platform = test::unimplementedPlatform();
};

TEST_F(MeterTest, quarterOfARing_isTrimmedAndTurned) {
  EXPECT_EQ(drawn(ring(0.25F).view()),
            "stroke 00FF00 alpha 0.5 width 16 round miter 10 M 116 66 "
            "C 116 93.614 93.614 116 66 116 C 38.386 116 16 93.614 16 66 "
            "C 16 38.386 38.386 16 66 16 C 93.614 16 116 38.386 116 66 Z\n"
            "group transform 0 -1 1 0 0 132\n"
            "  stroke 00FF00 width 16 round miter 10 M 116 66 C 116 93.614 93.614 116 66 116\n"
            "symbol \"iphone\" weight 600 000000 at 56 34 size 20 20\n"
            "text \"25%\" in \"Helvetica\" 20 weight 600 000000 at 51 78 size 30 20 "
            "room 132 88\n");
}

TEST_F(MeterTest, middle_leavesOutWhatIsOff) {
  Meter meter = ring(0.5F);
  meter.symbolOn = false;
  EXPECT_NE(drawn(meter.view()).find("\"50%\" in \"Helvetica\" 20 weight 600 000000 at 51 56"),
            std::string::npos);
  meter.percentageOn = false;
  EXPECT_EQ(drawn(meter.view()).find("text"), std::string::npos);
  meter.symbolOn = true;
  EXPECT_NE(drawn(meter.view()).find("at 56 48 size 20 20"), std::string::npos)
      << "its padding stays";
}

TEST_F(MeterTest, percentage_isRoundedInSinglePrecision) {
  const auto shown = [&](float level) {
    const std::string words = drawn(ring(level).view());
    const auto start = words.find("text \"") + 6;
    return words.substr(start, words.find('"', start) - start);
  };
  EXPECT_EQ(shown(1), "100%");
  EXPECT_EQ(shown(0.555F), "56%");
  EXPECT_EQ(shown(0.145F), "14%") << "14.5 goes to the even one";
  EXPECT_EQ(shown(-1), "-100%");
  EXPECT_EQ(shown(7), "700%");
  EXPECT_EQ(shown(-std::numeric_limits<float>::quiet_NaN()), "nan%");
  EXPECT_EQ(shown(endless), "inf%");
}

TEST_F(MeterTest, square_beginsInTheMiddleOfItsTop) {
  const std::string words =
      drawn(SquareMeter{0.125F, green, dark, dark, "iphone", false, "", false}.view());
  EXPECT_NE(words.find("alpha 0.5 width 16 round miter 10 M 116 66 L 116 92.96 C"),
            std::string::npos)
      << words;
  const auto part = words.substr(words.find("group"));
  EXPECT_EQ(part.substr(0, part.find(" C")),
            "group transform 0 -1 1 0 0 132\n"
            "  stroke 00FF00 width 16 round miter 10 M 116 66 L 116 92.96")
      << "as it is turned, rightward from the top's middle";
}

TEST_F(MeterTest, levelsOutOfRange_drawAnEmptyOrAClosedRing) {
  for (const float level : {0.0F, -1.0F, -endless, std::numeric_limits<float>::quiet_NaN()}) {
    EXPECT_NE(drawn(ring(level).view()).find("  stroke 00FF00 width 16 round miter 10\n"),
              std::string::npos)
        << level;
  }
  for (const float level : {1.0F, 7.0F, endless})
    EXPECT_NE(drawn(ring(level).view()).find(" 66 Z\nsymbol"), std::string::npos) << level;
}

TEST_F(MeterTest, line_isFilledFromItsLeadingEnd) {
  const auto outlines = [&](float level) {
    const DisplayList list =
        layOut(LineMeter{level, green}.view(300), {132, 132}, platform.drawing);
    std::string result;
    for (const DisplayItem& item : list) {
      const auto& path = std::get<DrawnPath>(item.content);
      double left = 1e300;
      double right = -1e300;
      for (const PathPoint& point : path.path.points) {
        left = std::min(left, point.x);
        right = std::max(right, point.x);
      }
      result += std::to_string(std::lround(left)) + "-" + std::to_string(std::lround(right)) + " ";
    }
    return result;
  };
  EXPECT_EQ(outlines(0.25F), "16-116 16-41 ");
  EXPECT_EQ(outlines(1), "16-116 16-116 ");
  EXPECT_EQ(outlines(-1), "16-116 16-16 ") << "nothing to be seen of it";
  EXPECT_EQ(outlines(7), "-284--184 -284-416 ") << "the longest is what stands in the middle";
  EXPECT_EQ(outlines(std::numeric_limits<float>::quiet_NaN()), "16-116 16-16 ");
}

} // namespace
} // namespace vitrelle
