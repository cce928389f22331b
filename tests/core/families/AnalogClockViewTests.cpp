#include "core/families/clock/AnalogClockView.h"

#include "core/drawing/Describe.h"
#include "core/families/clock/Clock.h"
#include "tests/support/Fakes.h"
#include "tests/support/UnimplementedPlatform.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

namespace vitrelle {
namespace {

constexpr PlatformColour red{1, 0, 0, 1};
constexpr PlatformColour green{0, 1, 0, 1};
constexpr PlatformColour blue{0, 0, 1, 1};

class AnalogClockViewTest : public testing::Test {
 protected:
  AnalogClockViewTest() { test::FakeDrawing::use(platform); }

  DisplayList list(const AnalogClockView& face) {
    return layOut(face.view(), {200, 200}, platform.drawing);
  }
  std::string drawn(const AnalogClockView& face) { return describe(list(face)); }
  static AnalogClockView face(std::int64_t complexity) {
    return {.timeInSeconds = 0,
            .complexity = complexity,
            .dialColour = red,
            .hoursColour = green,
            .armsColour = blue};
  }
  /// Where a point of an item ends up in groups of one item each.
  static PathPoint lastPoint(const DisplayItem& item) {
    if (const auto* path = std::get_if<DrawnPath>(&item.content)) return path->path.points.back();
    const auto& group = std::get<DrawnGroup>(item.content);
    const PathPoint p = lastPoint(group.items.at(0));
    const Transform& t = group.transform;
    return {t.a * p.x + t.c * p.y + t.x, t.b * p.x + t.d * p.y + t.y};
  }

  Platform platform = test::unimplementedPlatform();
};

TEST_F(AnalogClockViewTest, handsAtMidnight_stand6DegreesAhead) {
  EXPECT_EQ(drawn(face(0)), "group shadow 000000 alpha 0.3 radius 3 offset 3 2\n"
                            "  group transform 0.995 0.105 -0.105 0.995 11.001 -9.905\n"
                            "    stroke 0000FF width 2 round round 10 M 100 100 L 100 80\n"
                            "group shadow 000000 alpha 0.3 radius 3 offset 3 2\n"
                            "  group transform 0.995 0.105 -0.105 0.995 11.001 -9.905\n"
                            "    stroke 0000FF width 2 round round 10 M 100 100 L 100 70\n");
}

TEST_F(AnalogClockViewTest, handTips_lieWhereTheTimeSays) {
  struct Time {
    int hour, minute, second;
  };
  for (const Time& time : {Time{0, 0, 0}, {3, 15, 0}, {13, 30, 0}, {23, 59, 59}}) {
    AnalogClockView view = face(0);
    view.timeInSeconds = time.hour * 3600 + time.minute * 60 + time.second;
    const DisplayList hands = list(view);
    const double minutes = time.minute + time.second / 60.0;
    const auto expectTip = [&](const DisplayItem& hand, double degrees, double length) {
      const double angle = degrees * std::numbers::pi / 180;
      EXPECT_NEAR(lastPoint(hand).x, 100 + length * std::sin(angle), 1e-9) << time.hour;
      EXPECT_NEAR(lastPoint(hand).y, 100 - length * std::cos(angle), 1e-9) << time.hour;
    };
    expectTip(hands.at(0), 30 * (time.hour + minutes / 60) + 6, 20);
    expectTip(hands.at(1), 6 * minutes + 6, 30);
  }
}

TEST_F(AnalogClockViewTest, complexity_addsTheHoursThenTheDial) {
  EXPECT_EQ(list(face(1)).size(), 14U);
  const DisplayList all = list(face(2));
  ASSERT_EQ(all.size(), 15U);
  EXPECT_EQ(describe({all[0]}).substr(0, 60),
            "stroke FF0000 width 4 butt miter 10 M 155 100 C 155 130.376 ")
      << "at the back, and larger than the face";
  EXPECT_EQ(describe({all[1]}), "group\n  fill 00FF00 M 101 57.5 L 101 64 "
                                "C 101 64.552 100.552 65 100 65 L 100 65 "
                                "C 99.448 65 99 64.552 99 64 L 99 51 "
                                "C 99 50.448 99.448 50 100 50 L 100 50 "
                                "C 100.552 50 101 50.448 101 51 Z\n")
      << "the bar at twelve";
  const PathPoint at3 = lastPoint(all[4]);
  EXPECT_NEAR(at3.x, 149, 1e-9);
  EXPECT_NEAR(at3.y, 101, 1e-9);
  for (const std::int64_t damaged : {-1, 3, 7})
    EXPECT_EQ(drawn(face(damaged)), drawn(face(0))) << damaged;
}

TEST_F(AnalogClockViewTest, shapes_areThoseOfTheirCodes) {
  AnalogClockView view = face(2);
  view.dialShape = 1;
  EXPECT_EQ(describe({list(view)[0]}).substr(36, 24), "M 155 100 L 155 131.96 C");
  const auto marker = [&](std::int64_t shape) {
    view.hoursShape = shape;
    const std::string words = describe({list(view)[1]});
    return words.substr(0, words.find(" C"));
  };
  EXPECT_EQ(marker(1), "group\n  fill 00FF00 M 101 51");
  EXPECT_EQ(marker(2), "group\n  fill 00FF00 M 102.5 52.5");
  for (const std::int64_t damaged : {std::int64_t{-1}, std::int64_t{7}, INT64_MIN, INT64_MAX}) {
    view.hoursShape = damaged;
    EXPECT_EQ(list(view).size(), 3U) << "the dial and the hands";
    view.dialShape = damaged;
    EXPECT_EQ(list(view).size(), 2U) << "the hands";
    view.dialShape = 1;
  }
}

TEST_F(AnalogClockViewTest, date_standsBelow) {
  AnalogClockView view = face(0);
  view.date = "abcd";
  EXPECT_EQ(drawn(view).find("text"), std::string::npos);
  view.dateEnabled = true;
  view.dateFont = "Inter-Bold";
  view.dateSize = 10;
  view.dateColour = green;
  const auto date = [&](std::int64_t length) {
    view.dateLength = length;
    const std::string words = drawn(view);
    const auto start = words.find("text");
    return start == std::string::npos ? "" : words.substr(start);
  };
  // 122 high in all: the square, the gap of the stack, the padding and the line.
  EXPECT_EQ(date(0), "text \"abcd\" in \"Inter-Bold\" 10 00FF00 at 90 151 size 20 10 "
                     "room 200 88\n");
  EXPECT_EQ(date(1), "text \"abcd\" in \"Inter-Bold\" 10 centred 00FF00 at 90 151 size 20 10 "
                     "room 200 88\n");
  EXPECT_EQ(date(2), "");
  EXPECT_EQ(drawn(view), drawn(face(0))) << "and the clock is back in the middle";
}

TEST(Clock, handOfATimeBeyondIntegers_isFatalForMinutesAlone) {
  const auto path = [](TickerType type, double time) {
    return Clock{{type, time, 0.5}}.path({0, 0, 100, 100});
  };
  constexpr double nan = std::numeric_limits<double>::quiet_NaN();
  for (const double time : {nan, HUGE_VAL, -HUGE_VAL, 1e19, -1e19}) {
    EXPECT_DEATH(path(TickerType::minute, time), "minute hand");
    path(TickerType::hour, time);
  }
  EXPECT_NEAR(path(TickerType::minute, -900).points[1].x, 20, 1e-9) << "a quarter to twelve";
  EXPECT_NEAR(path(TickerType::minute, 9e18).points[0].x, 50, 1e-9);
}

} // namespace
} // namespace vitrelle
