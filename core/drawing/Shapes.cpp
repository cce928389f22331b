#include "core/drawing/Shapes.h"

#include <algorithm>

namespace vitrelle::shapes {

namespace {

/// Writes a path down.
class Pen final {
 public:
  void move(double x, double y) { add(PathCommand::move, {{x, y}}); }
  void line(double x, double y) { add(PathCommand::line, {{x, y}}); }
  void cubic(PathPoint a, PathPoint b, PathPoint end) { add(PathCommand::cubic, {a, b, end}); }
  Path close() {
    path_.commands.push_back(PathCommand::close);
    return std::move(path_);
  }

 private:
  void add(PathCommand command, std::initializer_list<PathPoint> points) {
    path_.commands.push_back(command);
    for (const PathPoint& point : points)
      path_.points.push_back(point);
  }
  Path path_;
};

/// Where the control points of a quarter circle of radius 1 lie.
constexpr double quarter = 0.5522847498307936;

/// In radii from the corner: where a bend begins that has the room for it.
constexpr double bend = 1.28;
/// In radii: how far the middle of a circle's quarter is from each side of its corner.
constexpr double middle = 0.2928932188134524;

} // namespace

Path rectangle(const PointRect& box) {
  Pen pen;
  pen.move(box.x, box.y);
  pen.line(box.x + box.width, box.y);
  pen.line(box.x + box.width, box.y + box.height);
  pen.line(box.x, box.y + box.height);
  return pen.close();
}

Path circle(const PointRect& box) {
  const double r = std::min(box.width, box.height) / 2;
  const double x = box.x + box.width / 2;
  const double y = box.y + box.height / 2;
  const double k = r * quarter;
  Pen pen;
  pen.move(x + r, y);
  pen.cubic({x + r, y + k}, {x + k, y + r}, {x, y + r});
  pen.cubic({x - k, y + r}, {x - r, y + k}, {x - r, y});
  pen.cubic({x - r, y - k}, {x - k, y - r}, {x, y - r});
  pen.cubic({x + k, y - r}, {x + r, y - k}, {x + r, y});
  return pen.close();
}

Path continuousRectangle(const PointRect& box, double radius) {
  const double longest = std::min(box.width, box.height) / 2;
  const double r = std::clamp(radius, 0.0, std::max(longest, 0.0));
  // With less room the bend begins later, down to the circle's own quarter. The curve's control
  // points lie so that its middle always is the circle's.
  const double reach = r > 0 ? std::min(bend, longest / r) : 1;
  const double begin = r * reach;
  const double pull = r * (8 * middle - reach) / 3;
  const double left = box.x;
  const double top = box.y;
  const double right = box.x + box.width;
  const double bottom = box.y + box.height;
  Pen pen;
  pen.move(right, top + box.height / 2);
  pen.line(right, bottom - begin);
  pen.cubic({right, bottom - pull}, {right - pull, bottom}, {right - begin, bottom});
  pen.line(left + begin, bottom);
  pen.cubic({left + pull, bottom}, {left, bottom - pull}, {left, bottom - begin});
  pen.line(left, top + begin);
  pen.cubic({left, top + pull}, {left + pull, top}, {left + begin, top});
  pen.line(right - begin, top);
  pen.cubic({right - pull, top}, {right, top + pull}, {right, top + begin});
  return pen.close();
}

} // namespace vitrelle::shapes
