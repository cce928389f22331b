// Where the ink of clocks and meters ends, at three pixels per point.
#include "core/families/battery/Meter.h"
#include "core/families/clock/AnalogClockView.h"
#include "core/families/clock/DigitalClockView.h"
#include "host/drawing/Rasteriser.h"
#include "host/symbols/Symbols.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace vitrelle::host {
namespace {

constexpr double scale = 3;
constexpr double side = 132; // points
constexpr PlatformColour red{1, 0, 0, 1};

class FacePixelsTest : public testing::Test {
 protected:
  void draw(const View& view) {
    const DisplayList list = layOut(view, {side, side}, drawing);
    const auto image = drawing.render({&list, 1}, {0, 0, side, side}, scale);
    ASSERT_TRUE(image);
    bitmap = image->bitmap().value();
  }
  const std::uint8_t* pixel(int x, int y) const {
    const auto within = [](int at, int size) { return std::clamp(at, 0, size - 1); };
    return bitmap.row(within(y, bitmap.size.height)) + 4 * within(x, bitmap.size.width);
  }
  /// How much red there is, from 0 to 1, at a place in pixels from the middle.
  double redAt(double x, double y) const {
    x += side * scale / 2 - 0.5; // pixels lie about their middles
    y += side * scale / 2 - 0.5;
    const int left = static_cast<int>(std::floor(x));
    const int top = static_cast<int>(std::floor(y));
    const auto red = [&](int column, int row) {
      const std::uint8_t* p = pixel(column, row);
      return p[0] * p[3] / 65025.0;
    };
    const double above = std::lerp(red(left, top), red(left + 1, top), x - left);
    const double below = std::lerp(red(left, top + 1), red(left + 1, top + 1), x - left);
    return std::lerp(above, below, y - top);
  }
  /// How far out the ink goes in a direction, in pixels; degrees are those of a clock.
  double reach(double degrees) const {
    const double angle = degrees * std::numbers::pi / 180;
    double length = side * scale;
    while (length > 0 && redAt(length * std::sin(angle), -length * std::cos(angle)) < 0.5)
      length -= 0.01;
    return length;
  }
  /// How far the middle of a hand is beside its direction, in pixels.
  double aside(double degrees, double length) const {
    const double angle = degrees * std::numbers::pi / 180;
    double sum = 0;
    double moment = 0;
    for (double off = -8; off <= 8; off += 0.1) {
      const double ink = redAt(length * std::sin(angle) + off * std::cos(angle),
                               -length * std::cos(angle) + off * std::sin(angle));
      sum += ink;
      moment += ink * off;
    }
    return moment / sum;
  }

  Drawing drawing = makeDrawing(makeSymbols());
  Bitmap bitmap;
};

TEST_F(FacePixelsTest, handTips_lieWithinHalfAPixel) {
  struct Time {
    int hour, minute, second;
    bool apart; ///< far enough for the end of the hour hand to be seen
  };
  for (const Time& time : {Time{0, 0, 0, false},
                           {3, 15, 0, false},
                           {13, 30, 0, true},
                           {23, 59, 59, false},
                           {10, 10, 0, true}}) {
    SCOPED_TRACE(time.hour);
    draw(AnalogClockView{.timeInSeconds = time.hour * 3600.0 + time.minute * 60 + time.second,
                         .armsColour = red}
             .view());
    const double minutes = time.minute + time.second / 60.0;
    const double minuteHand = 6 * minutes + 6;
    // A round cap goes a point beyond the hand's own end.
    EXPECT_NEAR(reach(minuteHand), (30 + 1) * scale, 0.5);
    EXPECT_NEAR(aside(minuteHand, 29 * scale), 0, 0.5);
    if (!time.apart) continue;
    const double hourHand = 30 * (time.hour + minutes / 60) + 6;
    EXPECT_NEAR(reach(hourHand), (20 + 1) * scale, 0.5);
    EXPECT_NEAR(aside(hourHand, 19 * scale), 0, 0.5);
  }
}

TEST_F(FacePixelsTest, handsShadow_fallsToTheRightAndBelow) {
  draw(AnalogClockView{.timeInSeconds = 6 * 3600, .armsColour = red}.view());
  const int middle = static_cast<int>(side * scale / 2);
  EXPECT_GT(pixel(middle + 15, middle + 6)[3], 10);
  EXPECT_EQ(pixel(middle + 15, middle + 6)[0], 0) << "black";
  EXPECT_EQ(pixel(middle - 40, middle)[3], 0);
}

TEST_F(FacePixelsTest, dial_overhangsTheFace) {
  draw(AnalogClockView{.complexity = 2, .hoursShape = 7, .dialColour = red}.view());
  for (const double degrees : {90.0, 135.0, 200.0})
    EXPECT_NEAR(reach(degrees), (55 + 2) * scale, 0.5) << degrees;
}

TEST_F(FacePixelsTest, quarterOfARing_endsWithItsRoundCaps) {
  draw(Meter{.battery = 0.25F, .ringColour = red, .symbolOn = false, .percentageOn = false}.view());
  constexpr double radius = 50 * scale; // of the ring's middle
  constexpr double cap = 8 * scale;
  EXPECT_NEAR(redAt(radius * std::sqrt(0.5), -radius * std::sqrt(0.5)), 1, 0.01);
  EXPECT_NEAR(redAt(radius, cap - 1), 1, 0.01) << "below three o'clock, within the cap";
  EXPECT_NEAR(redAt(radius, cap + 1), 0.5, 0.01) << "behind it, the rest of the ring";
  EXPECT_NEAR(redAt(-cap + 1, -radius), 1, 0.01) << "before the top, within the cap";
  EXPECT_NEAR(redAt(-cap - 1, -radius), 0.5, 0.01);
  EXPECT_NEAR(reach(45), radius + cap, 0.5);
  EXPECT_NEAR(redAt(0, -radius + cap + 2), 0, 0.01) << "inside the ring";
}

TEST_F(FacePixelsTest, squareMeter_hasCornersThatNoCircleMakes) {
  draw(SquareMeter{.battery = 1, .lineColour = red, .symbolOn = false, .percentageOn = false}
           .view());
  EXPECT_NEAR(reach(90), (50 + 8) * scale, 0.5);
  // The outer edge of a corner that is a circle would lie where its ray from the middle leaves a
  // circle of 18 + 8 points about a place 32 points to the right and below.
  const double angle = 33 * std::numbers::pi / 180;
  const double along = 32 * (std::cos(angle) + std::sin(angle));
  const double circular = along + std::sqrt(along * along - 2 * 32 * 32 + 26 * 26);
  EXPECT_LT(reach(90 + 33), circular * scale - 0.8);
}

TEST_F(FacePixelsTest, damagedValues_stillGiveAPicture) {
  constexpr float nan = std::numeric_limits<float>::quiet_NaN();
  for (const float level :
       {nan, -1.0F, 7.0F, 1e30F, -1e30F, std::numeric_limits<float>::infinity()}) {
    draw(Meter{.battery = level, .symbol = "no such symbol"}.view());
    draw(SquareMeter{.battery = level, .font = "NoSuchFont"}.view());
    draw(LineMeter{.battery = level}.view(300));
  }
  for (const std::int64_t number :
       {std::int64_t{0}, std::int64_t{-1}, std::int64_t{1000000000}, INT64_MIN, INT64_MAX}) {
    draw(DigitalClockView{.digitalSize = number,
                          .dateEnabled = true,
                          .dateSize = number,
                          .time = "9:41",
                          .date = "1/9/07"}
             .view());
    draw(AnalogClockView{.complexity = 2,
                         .dialShape = number,
                         .hoursShape = number,
                         .dateEnabled = true,
                         .dateSize = number,
                         .date = "1/9/07"}
             .view());
  }
}

} // namespace
} // namespace vitrelle::host
