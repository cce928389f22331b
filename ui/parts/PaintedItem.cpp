#include "ui/parts/PaintedItem.h"

#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGRendererInterface>
#include <QtMath>

#include <memory>

namespace vitrelle::ui {

PaintedItem::PaintedItem(QQuickItem* parent) : QQuickItem(parent) {
  setFlag(ItemHasContents);
  follow(window()); // a parent may have brought it into one before this class could be told
}

QSize PaintedItem::pixelSize() const {
  constexpr qreal inexactness = 1e-6; // a hair above a whole pixel is none
  return {qCeil(width() * pixelsPerPoint_ - inexactness),
          qCeil(height() * pixelsPerPoint_ - inexactness)};
}

QImage PaintedItem::picture() {
  QImage canvas(pixelSize(), QImage::Format_ARGB32_Premultiplied);
  canvas.fill(Qt::transparent);
  QPainter painter(&canvas);
  painter.scale(pixelsPerPoint_, pixelsPerPoint_);
  paint(&painter);
  return canvas;
}

QSGNode* PaintedItem::updatePaintNode(QSGNode* old, UpdatePaintNodeData*) {
  std::unique_ptr<QSGImageNode> node(static_cast<QSGImageNode*>(old));
  const QImage pixels = pixelSize().isEmpty() ? QImage() : picture();
  if (pixels.isNull()) return nullptr;
  if (node == nullptr) {
    node.reset(window()->createImageNode());
    node->setOwnsTexture(true);
    // Each pixel of the picture is one of the screen, and anything between two would blur it. A
    // graphics card, though, takes pixels twice where an item begins in the middle of one.
    const bool isExact =
        window()->rendererInterface()->graphicsApi() == QSGRendererInterface::Software;
    node->setFiltering(isExact ? QSGTexture::Nearest : QSGTexture::Linear);
  }
  node->setTexture(window()->createTextureFromImage(pixels, QQuickWindow::TextureHasAlphaChannel));
  node->setSourceRect(QRectF(QPointF(), pixels.size()));
  node->setRect(QRectF(QPointF(), QSizeF(pixels.size()) / pixelsPerPoint_));
  return node.release();
}

void PaintedItem::geometryChange(const QRectF& now, const QRectF& before) {
  QQuickItem::geometryChange(now, before);
  if (now.size() != before.size()) update();
}

void PaintedItem::itemChange(ItemChange change, const ItemChangeData& data) {
  if (change == ItemSceneChange) follow(data.window);
  QQuickItem::itemChange(change, data);
}

void PaintedItem::follow(QQuickWindow* window) {
  disconnect(frames_);
  // No item is told of the scales above it, so each looks before a frame is drawn.
  if (window != nullptr)
    frames_ = connect(window, &QQuickWindow::afterAnimating, this, &PaintedItem::measure);
}

void PaintedItem::componentComplete() {
  QQuickItem::componentComplete();
  measure();
}

void PaintedItem::measure() {
  if (window() == nullptr) return;
  const QTransform toWindow = itemTransform(nullptr, nullptr);
  const qreal scale = qSqrt(qAbs(toWindow.determinant())) * window()->effectiveDevicePixelRatio();
  if (scale <= 0 || qFuzzyCompare(scale, pixelsPerPoint_)) return;
  pixelsPerPoint_ = scale;
  pixelsPerPointChanged();
  update();
}

} // namespace vitrelle::ui
