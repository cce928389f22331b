#include "ui/colour/ColourDisc.h"

#include <QConicalGradient>
#include <QPainter>

namespace vitrelle::ui {

namespace {

constexpr qreal ringWidth = 3;
constexpr qreal gap = 2;

} // namespace

ColourDisc::ColourDisc(QQuickItem* parent) : PaintedItem(parent) {
  connect(this, &ColourDisc::changed, this, [this] { update(); });
}

void ColourDisc::paint(QPainter* painter) {
  painter->setRenderHint(QPainter::Antialiasing);
  QRectF disc(0, 0, width(), height());
  if (rainbow_) {
    QConicalGradient hues(disc.center(), 90);
    for (int i = 0; i <= 6; ++i)
      hues.setColorAt(i / 6.0, QColor::fromHsvF(static_cast<float>(i % 6) / 6, 0.85F, 1));
    painter->setPen(QPen(QBrush(hues), ringWidth));
    constexpr qreal half = ringWidth / 2;
    painter->drawEllipse(disc.adjusted(half, half, -half, -half));
    constexpr qreal inset = ringWidth + gap;
    disc.adjust(inset, inset, -inset, -inset);
  }
  painter->setPen(Qt::NoPen);
  if (chequered_ || rainbow_) {
    painter->setBrush(QColor(200, 200, 200));
    painter->drawEllipse(disc);
    painter->setBrush(QBrush(QColor(120, 120, 120), Qt::Dense4Pattern));
    painter->drawEllipse(disc);
  }
  painter->setBrush(colour_);
  painter->drawEllipse(disc);
}

} // namespace vitrelle::ui
