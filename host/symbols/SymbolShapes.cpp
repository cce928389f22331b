#include "host/symbols/SymbolShapes.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace vitrelle::host {

namespace {

constexpr double boxSide = 16;
constexpr double centre = boxSide / 2;

struct Bounds {
  double left = std::numeric_limits<double>::infinity();
  double top = std::numeric_limits<double>::infinity();
  double right = -std::numeric_limits<double>::infinity();
  double bottom = -std::numeric_limits<double>::infinity();

  double width() const { return right - left; }
  double height() const { return bottom - top; }
};

/// One coordinate of a cubic curve.
struct Curve {
  double start;
  double near;
  double far;
  double end;

  double at(double t) const {
    const double u = 1 - t;
    return u * u * u * start + 3 * u * u * t * near + 3 * u * t * t * far + t * t * t * end;
  }
  /// Where on its way it turns back, if it does.
  std::vector<double> turns() const {
    const double a = end - start + 3 * (near - far);
    const double b = 2 * (start - 2 * near + far);
    const double c = near - start;
    std::vector<double> found;
    const auto add = [&](double t) {
      if (t > 0 && t < 1) found.push_back(t);
    };
    if (std::abs(a) < 1e-9) {
      if (b != 0) add(-c / b);
      return found;
    }
    const double root = std::sqrt(std::max(b * b - 4 * a * c, 0.0));
    add((-b + root) / (2 * a));
    add((-b - root) / (2 * a));
    return found;
  }
};

/// Of what is drawn: control points may lie far outside of it.
Bounds boundsOf(const Path& path) {
  Bounds bounds;
  const auto addX = [&](double x) {
    bounds.left = std::min(bounds.left, x);
    bounds.right = std::max(bounds.right, x);
  };
  const auto addY = [&](double y) {
    bounds.top = std::min(bounds.top, y);
    bounds.bottom = std::max(bounds.bottom, y);
  };
  std::size_t next = 0;
  for (const PathCommand command : path.commands) {
    const PathPoint* point = path.points.data() + next;
    next += pointCount(command);
    if (command == PathCommand::close) continue;
    if (command == PathCommand::cubic) {
      const Curve x{point[-1].x, point[0].x, point[1].x, point[2].x};
      const Curve y{point[-1].y, point[0].y, point[1].y, point[2].y};
      for (const double t : x.turns())
        addX(x.at(t));
      for (const double t : y.turns())
        addY(y.at(t));
    }
    addX(path.points[next - 1].x);
    addY(path.points[next - 1].y);
  }
  return bounds;
}

/// Adds the path, scaled and then moved.
void append(Path& path, const Path& other, double scale, double x, double y) {
  path.commands.insert(path.commands.end(), other.commands.begin(), other.commands.end());
  for (const PathPoint& point : other.points) {
    path.points.push_back({point.x * scale + x, point.y * scale + y});
  }
}

/// A square around the box's centre, its corners rounded by quarter circles.
void appendRoundedSquare(Path& path, double halfSide, double radius) {
  using enum PathCommand;
  // How far a cubic's control points lie from the corner of the quarter circle it draws.
  const double pull = radius * (1 - 4 * (std::sqrt(2.0) - 1) / 3);
  const double near = centre - halfSide;
  const double far = centre + halfSide;
  path.commands.insert(path.commands.end(),
                       {move, line, cubic, line, cubic, line, cubic, line, cubic, close});
  path.points.insert(path.points.end(), {{near + radius, near},
                                         {far - radius, near},
                                         {far - pull, near},
                                         {far, near + pull},
                                         {far, near + radius},
                                         {far, far - radius},
                                         {far, far - pull},
                                         {far - pull, far},
                                         {far - radius, far},
                                         {near + radius, far},
                                         {near + pull, far},
                                         {near, far - pull},
                                         {near, far - radius},
                                         {near, near + radius},
                                         {near, near + pull},
                                         {near + pull, near},
                                         {near + radius, near}});
}

} // namespace

SymbolOutline enclosed(const Path& glyph, Enclosure enclosure) {
  const bool isFilled =
      enclosure == Enclosure::filledCircle || enclosure == Enclosure::filledSquare;
  const bool isRound = enclosure == Enclosure::circle || enclosure == Enclosure::filledCircle;
  SymbolOutline symbol{.path = {}, .rule = FillRule::evenOdd};
  appendRoundedSquare(symbol.path, 8, isRound ? 8 : 2);
  if (!isFilled) appendRoundedSquare(symbol.path, 7, isRound ? 7 : 1);

  const Bounds bounds = boundsOf(glyph);
  // A round shape has no room in its corners.
  const double room = isRound ? 8.5 : 10;
  const double diagonalRoom = isRound ? 11 : 14;
  const double scale = std::min(room / std::max(bounds.width(), bounds.height()),
                                diagonalRoom / std::hypot(bounds.width(), bounds.height()));
  append(symbol.path, glyph, scale, centre - scale * (bounds.left + bounds.right) / 2,
         centre - scale * (bounds.top + bounds.bottom) / 2);
  return symbol;
}

Path spelled(const std::vector<Path>& glyphs) {
  constexpr double height = 8;
  constexpr double gap = 1;
  Path row;
  double x = 0;
  for (const Path& glyph : glyphs) {
    const Bounds bounds = boundsOf(glyph);
    const double scale = height / bounds.height();
    append(row, glyph, scale, x - scale * bounds.left, centre - height / 2 - scale * bounds.top);
    x += scale * bounds.width() + gap;
  }
  // Into the box, in the middle of it.
  const double width = x - gap;
  const double scale = std::min(1.0, (boxSide - 2) / width);
  Path result;
  append(result, row, scale, centre - scale * width / 2, centre - scale * centre);
  return result;
}

} // namespace vitrelle::host
