#include "host/drawing/Shadows.h"

#include "host/drawing/Blur.h"
#include "host/painting/PainterValues.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

namespace vitrelle::host {

QRect inkOf(const QImage& canvas) {
  int left = canvas.width();
  int right = -1;
  int top = -1;
  int bottom = -1;
  for (int y = 0; y < canvas.height(); ++y) {
    const auto* row = reinterpret_cast<const QRgb*>(canvas.constScanLine(y));
    const auto* end = row + canvas.width();
    const auto* first = std::find_if(row, end, [](QRgb pixel) { return pixel != 0; });
    if (first == end) continue;
    int last = canvas.width() - 1;
    while (row[last] == 0)
      --last;
    left = std::min(left, static_cast<int>(first - row));
    right = std::max(right, last);
    if (top < 0) top = y;
    bottom = y;
  }
  return top < 0 ? QRect() : QRect(QPoint(left, top), QPoint(right, bottom));
}

QPoint offsetOf(const Shadow& shadow, double scale) {
  return {static_cast<int>(std::lround(shadow.x * scale)),
          static_cast<int>(std::lround(shadow.y * scale))};
}

void drawShadow(QPainter& painter, const QRect& visible, const QPoint& place, const QImage& canvas,
                const QRect& ink, const Shadow& shadow, double scale) {
  const double deviation = shadow.radius * scale;
  const int reach = blurReach(deviation);
  const QRect spread = ink.adjusted(-reach, -reach, reach, reach);
  Mask mask(spread.width(), spread.height());
  for (int y = 0; y < ink.height(); ++y) {
    const auto* from =
        reinterpret_cast<const QRgb*>(canvas.constScanLine(ink.top() + y)) + ink.left();
    std::uint8_t* to = mask.row(y + reach) + reach;
    std::transform(from, from + ink.width(), to,
                   [](QRgb pixel) { return static_cast<std::uint8_t>(qAlpha(pixel)); });
  }
  blur(mask, deviation);
  const QPoint move = place + offsetOf(shadow, scale);
  const QRect seen = spread & visible.translated(-move);
  if (seen.isEmpty()) return;
  QImage blurred(seen.size(), QImage::Format_ARGB32_Premultiplied);
  std::array<QRgb, 256> tints{};
  const QColor colour = qColour(shadow.colour);
  for (int alpha = 0; alpha < 256; ++alpha) {
    QColor tint = colour;
    tint.setAlphaF(static_cast<float>(alpha) / 255 * colour.alphaF());
    tints[static_cast<std::size_t>(alpha)] = qPremultiply(tint.rgba());
  }
  for (int y = 0; y < seen.height(); ++y) {
    const std::uint8_t* from =
        mask.row(seen.top() - spread.top() + y) + (seen.left() - spread.left());
    std::transform(from, from + seen.width(), reinterpret_cast<QRgb*>(blurred.scanLine(y)),
                   [&](std::uint8_t alpha) { return tints[alpha]; });
  }
  painter.drawImage(seen.topLeft() + move, blurred);
}

} // namespace vitrelle::host
