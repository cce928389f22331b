#include "ui/share/SharePreview.h"

#include "ui/parts/PictureSource.h"

#include <QPainter>

namespace vitrelle::ui {

namespace {

constexpr qreal squareSide = 8; // points

QBrush checkerboard(qreal pixelsPerPoint) {
  const int side = qRound(squareSide * pixelsPerPoint);
  QImage tile(2 * side, 2 * side, QImage::Format_RGB32);
  tile.fill(QColor(0xFF, 0xFF, 0xFF));
  QPainter painter(&tile);
  for (const int corner : {0, side})
    painter.fillRect(corner, corner, side, side, QColor(0xD0, 0xD0, 0xD0));
  return QBrush(tile);
}

} // namespace

SharePreview::SharePreview(QQuickItem* parent) : PaintedItem(parent) {
  connect(this, &SharePreview::itemChanged, this, &SharePreview::update);
}

QImage SharePreview::picture() {
  const QImage whole = item_.preview ? stretched(*item_.preview, pixelSize()) : QImage();
  if (whole.isNull()) return {};
  QImage canvas(whole.size(), QImage::Format_ARGB32_Premultiplied);
  QPainter painter(&canvas);
  painter.fillRect(canvas.rect(), checkerboard(pixelsPerPoint()));
  painter.drawImage(0, 0, whole);
  return canvas;
}

} // namespace vitrelle::ui
