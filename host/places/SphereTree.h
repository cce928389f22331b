// Points on the Earth, kept so that the nearest one is found without looking at all of them.
#pragma once

#include "core/platform/Location.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace vitrelle::host {

/// A k-d tree over points in space, on a sphere of radius 1: neither the poles nor the 180th
/// meridian are anything special there.
class SphereTree final {
 public:
  explicit SphereTree(const std::vector<Coordinate>& points);

  /// The index of the nearest point by great circle, no farther away than so many metres;
  /// the first of several at one place.
  std::optional<std::size_t> nearest(const Coordinate& position, double mostMetres) const;

 private:
  struct Point {
    std::array<double, 3> at{};
    std::uint32_t index = 0;
  };
  struct Search {
    std::array<double, 3> at{};
    double squaredDistance = 0; ///< of the best so far, through the Earth
    std::optional<std::size_t> best;
  };
  static std::array<double, 3> onSphere(const Coordinate& position);
  void order(std::size_t begin, std::size_t end, std::size_t axis);
  void look(std::size_t begin, std::size_t end, std::size_t axis, Search& search) const;

  /// The middle one of a range divides the others of it by one axis, the next axis further down.
  std::vector<Point> points_;
};

} // namespace vitrelle::host
