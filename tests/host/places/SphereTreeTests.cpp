#include "host/places/SphereTree.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>
#include <random>

namespace vitrelle::host {
namespace {

constexpr double anywhere = 30'000'000;

/// By the haversine formula, in metres.
double distance(const Coordinate& left, const Coordinate& right) {
  constexpr double degree = std::numbers::pi / 180;
  const auto haversine = [](double angle) { return std::pow(std::sin(angle / 2), 2); };
  const double h = haversine((right.latitude - left.latitude) * degree) +
                   std::cos(left.latitude * degree) * std::cos(right.latitude * degree) *
                       haversine((right.longitude - left.longitude) * degree);
  return 2 * 6'371'008.8 * std::asin(std::min(1.0, std::sqrt(h)));
}

TEST(SphereTree, nearest_isThatOfLookingAtAll) {
  std::mt19937 random(5);
  std::uniform_real_distribution<double> latitude(-90, 90);
  std::uniform_real_distribution<double> longitude(-180, 180);
  for (const std::size_t count : {1U, 2U, 3U, 50U, 1000U}) {
    std::vector<Coordinate> points(count);
    for (Coordinate& point : points)
      point = {latitude(random), longitude(random)};
    const SphereTree tree(points);
    for (int i = 0; i < 300; ++i) {
      const Coordinate asked{latitude(random), longitude(random)};
      double shortest = anywhere;
      for (const Coordinate& point : points)
        shortest = std::min(shortest, distance(asked, point));
      const auto found = tree.nearest(asked, anywhere);
      ASSERT_TRUE(found);
      EXPECT_NEAR(distance(asked, points[*found]), shortest, 1)
          << count << " points, " << asked.latitude << "," << asked.longitude;
      EXPECT_EQ(tree.nearest(asked, shortest - 1), std::nullopt);
      EXPECT_EQ(tree.nearest(asked, shortest + 1), found);
    }
  }
}

TEST(SphereTree, polesAndTheDateLine_areNoBorders) {
  const SphereTree tree({{89.9, 0}, {0, 179.9}, {-89.9, 90}, {10, 10}});
  const std::pair<Coordinate, std::size_t> cases[] = {{{89.9, 180}, 0},   {{90, -77}, 0},
                                                      {{0.1, -179.9}, 1}, {{0, 180}, 1},
                                                      {{-90, 0}, 2},      {{-89.8, -90}, 2}};
  for (const auto& [position, nearest] : cases)
    EXPECT_EQ(tree.nearest(position, 50'000), nearest)
        << position.latitude << "," << position.longitude;
}

TEST(SphereTree, oddQuestions_haveNoAnswer) {
  constexpr double none = std::numeric_limits<double>::quiet_NaN();
  const SphereTree tree({{1, 2}, {1, 2}});
  EXPECT_EQ(tree.nearest({none, 2}, anywhere), std::nullopt);
  EXPECT_EQ(tree.nearest({1, HUGE_VAL}, anywhere), std::nullopt);
  EXPECT_EQ(SphereTree({}).nearest({1, 2}, anywhere), std::nullopt);
  EXPECT_EQ(tree.nearest({1, 2}, 0), 0U) << "the first of two at one place";
}

} // namespace
} // namespace vitrelle::host
