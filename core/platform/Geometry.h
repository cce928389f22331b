// Sizes and places in points, origin top left, y down.
#pragma once

namespace vitrelle {

struct PointSize {
  double width = 0;
  double height = 0;
  bool operator==(const PointSize&) const = default;
};

struct PointRect {
  double x = 0;
  double y = 0;
  double width = 0;
  double height = 0;
  bool operator==(const PointRect&) const = default;
};

} // namespace vitrelle
