#include "core/drawing/Shapes.h"

#include <gtest/gtest.h>

#include <cmath>

namespace vitrelle {
namespace {

/// The middle of the first curve of a continuous rectangle, at its right bottom corner.
PathPoint middleOfBend(const Path& path) {
  const auto* p = path.points.data() + 1; // the line's end, where the curve begins
  return {(p[0].x + 3 * p[1].x + 3 * p[2].x + p[3].x) / 8,
          (p[0].y + 3 * p[1].y + 3 * p[2].y + p[3].y) / 8};
}

TEST(Shapes, continuousCorner_beginsEarlyAndMeetsTheCircleInItsMiddle) {
  const Path path = shapes::continuousRectangle({0, 0, 100, 80}, 20);
  EXPECT_EQ(path.points[0], (PathPoint{100, 40})) << "the middle of the right side";
  EXPECT_LT(path.points[1].y, 80 - 20 - 5) << "where the straight side ends";
  const PathPoint middle = middleOfBend(path);
  EXPECT_NEAR(std::hypot(middle.x - 80, middle.y - 60), 20, 1e-9);
  EXPECT_EQ(path.points[1].x, path.points[2].x) << "the bend leaves the side without a break";
}

TEST(Shapes, continuousRectangleWithoutRoom_hasRoundEnds) {
  const Path capsule = shapes::continuousRectangle({0, 0, 130, 20}, 200);
  const Path disc = shapes::circle({110, 0, 20, 20});
  const PathPoint& control = capsule.points[2];
  EXPECT_NEAR(control.x, disc.points[1].x, 1e-9);
  EXPECT_NEAR(control.y, disc.points[1].y, 1e-9);
  const PathPoint middle = middleOfBend(shapes::continuousRectangle({0, 0, 40, 40}, 18));
  EXPECT_NEAR(std::hypot(middle.x - 22, middle.y - 22), 18, 1e-9) << "a bend that is cut short";
}

TEST(Shapes, rectanglesOfNoSize_stayFinite) {
  for (const PointRect& box : {PointRect{5, 5, 0, 20}, {5, 5, 20, 0}, {5, 5, -30, 20}}) {
    for (const PathPoint& point : shapes::continuousRectangle(box, 18).points)
      EXPECT_TRUE(std::isfinite(point.x) && std::isfinite(point.y));
  }
}

} // namespace
} // namespace vitrelle
