#include "ui/parts/FaceItem.h"

#include "ui/Shell.h"

#include <QPainter>
#include <QQmlEngine>
#include <QQuickWindow>

namespace vitrelle::ui {

FaceItem::FaceItem(QQuickItem* parent) : QQuickPaintedItem(parent) {
  connect(this, &FaceItem::changed, this, [this] {
    picture_ = {};
    update();
  });
}

void FaceItem::setFace(const Face& face) {
  if (face == face_) return;
  face_ = face;
  Q_EMIT changed();
}

void FaceItem::draw(qreal ratio) {
  drawnSize_ = size();
  const PointRect area{-bleed_, -bleed_, width() / magnification_, height() / magnification_};
  const auto image = Shell::of(*qmlEngine(this))
                         .platform()
                         .drawing.render({face_.list.get(), 1}, area, ratio * magnification_);
  const auto bitmap = image ? image->bitmap() : Result<Bitmap>(image.failure());
  if (!bitmap) return;
  picture_ = QImage(bitmap->pixels, bitmap->size.width, bitmap->size.height,
                    static_cast<qsizetype>(bitmap->bytesPerRow), QImage::Format_RGBA8888)
                 .convertToFormat(QImage::Format_ARGB32_Premultiplied);
  picture_.setDevicePixelRatio(ratio);
}

void FaceItem::paint(QPainter* painter) {
  if (face_.list == nullptr) return;
  // The painter's own device may not know it yet.
  const qreal ratio = window() != nullptr ? window()->effectiveDevicePixelRatio() : 1;
  if (picture_.isNull() || picture_.devicePixelRatio() != ratio || drawnSize_ != size())
    draw(ratio);
  if (!picture_.isNull()) painter->drawImage(QPointF(0, 0), picture_);
}

} // namespace vitrelle::ui
