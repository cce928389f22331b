#include "host/places/SphereTree.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vitrelle::host {

namespace {

constexpr double earthRadiusMetres = 6'371'008.8;

double squaredDistance(const std::array<double, 3>& left, const std::array<double, 3>& right) {
  double sum = 0;
  for (std::size_t axis = 0; axis < 3; ++axis)
    sum += (left[axis] - right[axis]) * (left[axis] - right[axis]);
  return sum;
}

/// Of the straight line between two points that are so far apart over the ground.
double squaredChord(double metres) {
  const double chord = 2 * std::sin(std::min(metres / earthRadiusMetres, std::numbers::pi) / 2);
  return chord * chord;
}

} // namespace

SphereTree::SphereTree(const std::vector<Coordinate>& points) {
  points_.reserve(points.size());
  for (const Coordinate& point : points)
    points_.push_back({onSphere(point), static_cast<std::uint32_t>(points_.size())});
  order(0, points_.size(), 0);
}

std::optional<std::size_t> SphereTree::nearest(const Coordinate& position,
                                               double mostMetres) const {
  Search search{onSphere(position), squaredChord(mostMetres), std::nullopt};
  look(0, points_.size(), 0, search);
  return search.best;
}

std::array<double, 3> SphereTree::onSphere(const Coordinate& position) {
  constexpr double degree = std::numbers::pi / 180;
  const double latitude = position.latitude * degree;
  const double longitude = position.longitude * degree;
  return {std::cos(latitude) * std::cos(longitude), std::cos(latitude) * std::sin(longitude),
          std::sin(latitude)};
}

void SphereTree::order(std::size_t begin, std::size_t end, std::size_t axis) {
  if (end - begin < 2) return;
  const std::size_t middle = begin + (end - begin) / 2;
  const auto at = [this](std::size_t i) {
    return points_.begin() + static_cast<std::ptrdiff_t>(i);
  };
  std::nth_element(at(begin), at(middle), at(end), [axis](const Point& left, const Point& right) {
    return left.at[axis] < right.at[axis];
  });
  order(begin, middle, (axis + 1) % 3);
  order(middle + 1, end, (axis + 1) % 3);
}

void SphereTree::look(std::size_t begin, std::size_t end, std::size_t axis, Search& search) const {
  if (begin == end) return;
  const std::size_t middle = begin + (end - begin) / 2;
  const Point& point = points_[middle];
  const double distance = squaredDistance(search.at, point.at);
  const bool isFirst = !search.best || point.index < *search.best;
  if (distance < search.squaredDistance || (distance == search.squaredDistance && isFirst)) {
    search.squaredDistance = distance;
    search.best = point.index;
  }
  const double beyond = search.at[axis] - point.at[axis];
  const std::size_t next = (axis + 1) % 3;
  const bool isBefore = beyond < 0;
  isBefore ? look(begin, middle, next, search) : look(middle + 1, end, next, search);
  if (beyond * beyond > search.squaredDistance) return;
  isBefore ? look(middle + 1, end, next, search) : look(begin, middle, next, search);
}

} // namespace vitrelle::host
