#include "host/painting/PainterValues.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>

namespace vitrelle::host {

QPainterPath qPath(const Path& path, FillRule rule) {
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

QColor qColour(const PlatformColour& colour) {
  const auto part = [](double value) { return static_cast<float>(std::clamp(value, 0.0, 1.0)); };
  return QColor::fromRgbF(part(colour.red), part(colour.green), part(colour.blue),
                          part(colour.alpha));
}

PlatformColour platformColour(const QColor& colour) {
  const QRgba64 parts = colour.rgba64();
  constexpr double full = 0xFFFF;
  return {parts.red() / full, parts.green() / full, parts.blue() / full, parts.alpha() / full};
}

QImage qImage(const Bitmap& bitmap) {
  const auto format = bitmap.opaque ? QImage::Format_RGBX8888 : QImage::Format_RGBA8888;
  const bool aligned =
      bitmap.bytesPerRow % 4 == 0 && reinterpret_cast<std::uintptr_t>(bitmap.pixels) % 4 == 0;
  if (aligned) {
    using Owner = decltype(bitmap.owner);
    auto owner = std::make_unique<Owner>(bitmap.owner);
    return QImage(
        bitmap.pixels, bitmap.size.width, bitmap.size.height,
        static_cast<qsizetype>(bitmap.bytesPerRow), format,
        [](void* kept) { const std::unique_ptr<Owner> last(static_cast<Owner*>(kept)); },
        owner.release());
  }
  QImage copy(bitmap.size.width, bitmap.size.height, format);
  for (int y = 0; y < copy.height(); ++y)
    std::memcpy(copy.scanLine(y), bitmap.row(y), static_cast<std::size_t>(copy.width()) * 4);
  return copy;
}

double symbolEdge(int weight, double symbolHeight) {
  return std::max(weight - 400, 0) / 500.0 * 0.9 * symbolHeight / 16;
}

} // namespace vitrelle::host
