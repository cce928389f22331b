#include "ui/parts/PainterPath.h"

#include <cstddef>

namespace vitrelle::ui {

QPainterPath painterPath(const Path& path, FillRule rule) {
  QPainterPath result;
  result.setFillRule(rule == FillRule::evenOdd ? Qt::OddEvenFill : Qt::WindingFill);
  const auto point = [](PathPoint p) { return QPointF(p.x, p.y); };
  std::size_t next = 0;
  for (const PathCommand command : path.commands) {
    const PathPoint* points = path.points.data() + next;
    switch (command) {
    case PathCommand::move:
      result.moveTo(point(points[0]));
      break;
    case PathCommand::line:
      result.lineTo(point(points[0]));
      break;
    case PathCommand::cubic:
      result.cubicTo(point(points[0]), point(points[1]), point(points[2]));
      break;
    case PathCommand::close:
      result.closeSubpath();
      break;
    }
    next += pointCount(command);
  }
  return result;
}

} // namespace vitrelle::ui
