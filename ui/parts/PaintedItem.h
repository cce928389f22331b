// An item that is painted in the pixels of the screen, however the items above it are scaled. The
// window shows the phone at any size, and whoever stretches finished pixels gets jagged edges.
#pragma once

#include <QImage>
#include <QMetaObject>
#include <QPainter>
#include <QQuickItem>
#include <QtQmlIntegration>

namespace vitrelle::ui {

/// Whoever derives from it names it in full, as the tools that read QML's types need it.
class PaintedItem : public QQuickItem {
  Q_OBJECT
  QML_ANONYMOUS

 public:
  explicit PaintedItem(QQuickItem* parent = nullptr);

 protected:
  /// In points, from the item's corner.
  virtual void paint(QPainter*) {}
  /// The item in the pixels of the screen: what is painted, if nothing else is told. Null shows
  /// nothing.
  virtual QImage picture();
  /// Called when another number of pixels comes to a point.
  virtual void pixelsPerPointChanged() {}

  /// Of the screen, all scales included. 1 outside of a window.
  qreal pixelsPerPoint() const { return pixelsPerPoint_; }
  /// That the item covers; a broken one counts whole.
  QSize pixelSize() const;

  QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;
  void geometryChange(const QRectF& now, const QRectF& before) override;
  void itemChange(ItemChange change, const ItemChangeData& data) override;
  void componentComplete() override;

 private:
  void follow(QQuickWindow* window);
  /// Looks at the scales.
  void measure();

  qreal pixelsPerPoint_ = 1;
  QMetaObject::Connection frames_;
};

} // namespace vitrelle::ui
