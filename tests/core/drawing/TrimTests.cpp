#include "core/drawing/Trim.h"

#include "core/drawing/Shapes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

namespace vitrelle {
namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double endless = std::numeric_limits<double>::infinity();

TEST(Trim, circle_endsAtItsAngle) {
  const Path whole = shapes::circle({-50, -50, 100, 100});
  for (const double level : {0.001, 0.1, 0.25, 0.33, 0.5, 0.999}) {
    const double angle = level * 2 * std::numbers::pi;
    const Path path = trimmed(whole, 0, level);
    EXPECT_EQ(path.points.front(), (PathPoint{50, 0}));
    EXPECT_NEAR(path.points.back().x, 50 * std::cos(angle), 0.02) << level;
    EXPECT_NEAR(path.points.back().y, 50 * std::sin(angle), 0.02) << level;
  }
}

TEST(Trim, part_isOfLinesAndTheClosingOne) {
  const Path box = shapes::rectangle({0, 0, 30, 10}); // 80 around
  EXPECT_EQ(trimmed(box, 0.125, 0.5),
            (Path{{PathCommand::move, PathCommand::line, PathCommand::line},
                  {{10, 0}, {30, 0}, {30, 10}}}));
  EXPECT_EQ(trimmed(box, 0.9375, 1).points, (std::vector<PathPoint>{{0, 5}, {0, 0}}));
}

TEST(Trim, liftedPen_isLiftedInTheParts) {
  const Path two{{PathCommand::move, PathCommand::line, PathCommand::move, PathCommand::line},
                 {{0, 0}, {10, 0}, {0, 5}, {10, 5}}};
  EXPECT_EQ(trimmed(two, 0.25, 0.75), (Path{two.commands, {{5, 0}, {10, 0}, {0, 5}, {5, 5}}}));
}

TEST(Trim, beyondTheEnds_isNothing) {
  const Path whole = shapes::circle({0, 0, 10, 10});
  for (const double level : {1.0, 7.0, endless})
    EXPECT_EQ(trimmed(whole, 0, level), whole) << "closes on itself";
  for (const double level : {0.0, -1.0, -endless, nan})
    EXPECT_EQ(trimmed(whole, 0, level), Path()) << level;
  EXPECT_EQ(trimmed(whole, -3, 0.5), trimmed(whole, 0, 0.5));
  EXPECT_EQ(trimmed(whole, 0.5, 0.2), Path());
  EXPECT_EQ(trimmed(shapes::circle({0, 0, 0, 0}), 0, 0.5), Path());
  EXPECT_EQ(trimmed({}, 0, 0.5), Path());
}

} // namespace
} // namespace vitrelle
