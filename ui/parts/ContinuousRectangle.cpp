#include "ui/parts/ContinuousRectangle.h"

#include <QLinearGradient>
#include <QPainter>

#include <algorithm>

namespace vitrelle::ui {

namespace {

// In radii from the corner: where the bend begins, and where its curve's control points lie. The
// middle of the bend is that of the circle.
constexpr qreal bend = 1.28;
constexpr qreal control = 0.354;

} // namespace

QPainterPath continuousRectangle(const QRectF& rectangle, qreal radius) {
  const qreal longest = std::min(rectangle.width(), rectangle.height()) / 2;
  if (radius >= longest) { // round ends, of which nothing is left to bend
    QPainterPath capsule;
    capsule.addRoundedRect(rectangle, longest, longest);
    return capsule;
  }
  const qreal begin = std::min(radius * bend, longest);
  const qreal pull = begin / bend * control;
  const qreal left = rectangle.left();
  const qreal top = rectangle.top();
  const qreal right = rectangle.right();
  const qreal bottom = rectangle.bottom();
  QPainterPath path(QPointF(left + begin, top));
  path.lineTo(right - begin, top);
  path.cubicTo(right - pull, top, right, top + pull, right, top + begin);
  path.lineTo(right, bottom - begin);
  path.cubicTo(right, bottom - pull, right - pull, bottom, right - begin, bottom);
  path.lineTo(left + begin, bottom);
  path.cubicTo(left + pull, bottom, left, bottom - pull, left, bottom - begin);
  path.lineTo(left, top + begin);
  path.cubicTo(left, top + pull, left + pull, top, left + begin, top);
  return path;
}

ContinuousRectangle::ContinuousRectangle(QQuickItem* parent) : PaintedItem(parent) {
  connect(this, &ContinuousRectangle::changed, this, [this] { update(); });
}

void ContinuousRectangle::paint(QPainter* painter) {
  painter->setRenderHint(QPainter::Antialiasing);
  const qreal inset = borderWidth_ / 2;
  const QRectF all(0, 0, width(), height());
  QPainterPath path = continuousRectangle(all.adjusted(inset, inset, -inset, -inset), radius_);
  if (inverted_) {
    path.addRect(all);
    path.setFillRule(Qt::OddEvenFill);
  }
  if (colourBelow_.isValid()) {
    QLinearGradient gradient(all.topLeft(), all.bottomLeft());
    gradient.setColorAt(0, colour_);
    gradient.setColorAt(1, colourBelow_);
    painter->fillPath(path, gradient);
  } else {
    painter->fillPath(path, colour_);
  }
  if (borderWidth_ > 0) painter->strokePath(path, QPen(borderColour_, borderWidth_));
}

} // namespace vitrelle::ui
