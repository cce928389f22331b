#include "ui/colour/Eyedropper.h"

#include <QPainter>
#include <QPainterPath>
#include <QQuickWindow>

#include <algorithm>

namespace vitrelle::ui {

namespace {

constexpr int pixelsAcross = 11; ///< an odd number, for one lies in the middle

} // namespace

Eyedropper::Eyedropper(QQuickItem* parent) : PaintedItem(parent) {}

void Eyedropper::takePicture() {
  picture_ = window() != nullptr ? window()->grabWindow() : QImage();
  Q_EMIT positionChanged();
  update();
}

void Eyedropper::setPosition(const QPointF& position) {
  if (window() == nullptr) return;
  position_ = QPointF(std::clamp(position.x(), 0.0, window()->width() - 1.0),
                      std::clamp(position.y(), 0.0, window()->height() - 1.0));
  Q_EMIT positionChanged();
  update();
}

QPoint Eyedropper::pixel() const {
  const qreal ratio = window() != nullptr ? window()->effectiveDevicePixelRatio() : 1;
  return (position_ * ratio).toPoint();
}

QColor Eyedropper::colour() const {
  return picture_.valid(pixel()) ? picture_.pixelColor(pixel()) : QColor();
}

void Eyedropper::paint(QPainter* painter) {
  if (picture_.isNull()) return;
  const QRectF lens = QRectF(0, 0, width(), height()).adjusted(4, 4, -4, -4);
  const QPoint middle = pixel();
  const QImage seen = picture_.copy(middle.x() - pixelsAcross / 2, middle.y() - pixelsAcross / 2,
                                    pixelsAcross, pixelsAcross);
  painter->setRenderHint(QPainter::Antialiasing);
  QBrush brush(seen);
  brush.setTransform(
      QTransform::fromScale(lens.width() / seen.width(), lens.height() / seen.height()) *
      QTransform::fromTranslate(lens.x(), lens.y()));
  QPainterPath round;
  round.addEllipse(lens);
  painter->fillPath(round, brush);
  const qreal cell = lens.width() / pixelsAcross;
  painter->setPen(QPen(Qt::white, 1.5));
  painter->drawRect(QRectF(lens.center() - QPointF(cell / 2, cell / 2), QSizeF(cell, cell)));
  painter->setPen(QPen(Qt::black, 1));
  painter->drawEllipse(lens.adjusted(-3.5, -3.5, 3.5, 3.5));
  painter->setPen(QPen(colour(), 6));
  painter->drawEllipse(lens);
  painter->setPen(QPen(Qt::white, 1));
  painter->drawEllipse(lens.adjusted(-3, -3, 3, 3));
}

} // namespace vitrelle::ui
