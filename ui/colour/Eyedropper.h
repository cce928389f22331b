// Takes a colour from anywhere in the window: a picture of it, the pixel under a point, and a loupe
// over that.
#pragma once

#include "ui/parts/PaintedItem.h"

#include <QColor>
#include <QImage>
#include <QPointF>

namespace vitrelle::ui {

/// The item is the loupe.
class Eyedropper : public vitrelle::ui::PaintedItem {
  Q_OBJECT
  QML_ELEMENT
  /// In the window's coordinates, and within the window.
  Q_PROPERTY(QPointF position READ position WRITE setPosition NOTIFY positionChanged)
  Q_PROPERTY(QColor colour READ colour NOTIFY positionChanged)

 public:
  explicit Eyedropper(QQuickItem* parent = nullptr);

  QPointF position() const { return position_; }
  void setPosition(const QPointF& position);
  QColor colour() const;

  /// Takes the picture, so it must not be visible itself.
  Q_INVOKABLE void takePicture();

 Q_SIGNALS:
  void positionChanged();

 protected:
  void paint(QPainter* painter) override;

 private:
  QPoint pixel() const;

  QImage picture_;
  QPointF position_;
};

} // namespace vitrelle::ui
