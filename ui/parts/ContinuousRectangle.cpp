#include "ui/parts/ContinuousRectangle.h"

#include "core/drawing/Shapes.h"
#include "host/painting/PainterValues.h"

#include <QLinearGradient>
#include <QPainter>

namespace vitrelle::ui {

QPainterPath continuousRectangle(const QRectF& rectangle, qreal radius) {
  const PointRect box{rectangle.x(), rectangle.y(), rectangle.width(), rectangle.height()};
  return host::qPath(shapes::continuousRectangle(box, radius));
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
