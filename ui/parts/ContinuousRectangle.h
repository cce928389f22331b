// Rectangles whose corners begin to bend early, so that edge and corner pass into each other: the
// form of the phone's screen, its icons and its widgets.
#pragma once

#include "ui/parts/PaintedItem.h"

#include <QColor>
#include <QPainterPath>

namespace vitrelle::ui {

/// `radius` is that of the circle whose corner it looks like; it is cut to half the shorter side.
QPainterPath continuousRectangle(const QRectF& rectangle, qreal radius);

/// A filled one with an optional border, or, inverted, the corners around one: a cover that rounds
/// whatever lies beneath it.
class ContinuousRectangle : public vitrelle::ui::PaintedItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(qreal radius MEMBER radius_ NOTIFY changed)
  Q_PROPERTY(QColor colour MEMBER colour_ NOTIFY changed)
  Q_PROPERTY(QColor colourBelow MEMBER colourBelow_ NOTIFY changed)
  Q_PROPERTY(QColor borderColour MEMBER borderColour_ NOTIFY changed)
  Q_PROPERTY(qreal borderWidth MEMBER borderWidth_ NOTIFY changed)
  Q_PROPERTY(bool inverted MEMBER inverted_ NOTIFY changed)

 public:
  explicit ContinuousRectangle(QQuickItem* parent = nullptr);

 Q_SIGNALS:
  void changed();

 protected:
  void paint(QPainter* painter) override;

 private:
  qreal radius_ = 0;
  QColor colour_ = Qt::transparent;
  QColor colourBelow_; ///< the lower end of a gradient, when it is set
  QColor borderColour_ = Qt::transparent;
  qreal borderWidth_ = 0;
  bool inverted_ = false;
};

} // namespace vitrelle::ui
