#include "ui/parts/FaceItem.h"

#include "host/painting/PainterValues.h"
#include "ui/parts/Surroundings.h"

#include <QQmlEngine>

namespace vitrelle::ui {

FaceItem::FaceItem(QQuickItem* parent) : PaintedItem(parent) {
  connect(this, &FaceItem::changed, this, &FaceItem::update);
}

void FaceItem::setFace(const Face& face) {
  if (face == face_) return;
  face_ = face;
  Q_EMIT changed();
}

QImage FaceItem::picture() {
  if (face_.list == nullptr) return {};
  const PointRect area{-bleed_, -bleed_, width() / magnification_, height() / magnification_};
  const auto image =
      Surroundings::of(*qmlEngine(this))
          .platform()
          .drawing.render({face_.list.get(), 1}, area, pixelsPerPoint() * magnification_);
  const auto bitmap = image ? image->bitmap() : Result<Bitmap>(image.failure());
  if (!bitmap) return {};
  return host::qImage(*bitmap).convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

} // namespace vitrelle::ui
