#include "ui/parts/StoredPicture.h"

#include "ui/parts/ContinuousRectangle.h"
#include "ui/parts/Surroundings.h"

#include <QPainter>
#include <QPointer>
#include <QQmlEngine>

namespace vitrelle::ui {

StoredPicture::StoredPicture(QQuickItem* parent) : PaintedItem(parent) {
  connect(this, &StoredPicture::asked, this, &StoredPicture::load);
  rest_.setSingleShot(true);
  rest_.setInterval(100);
  rest_.callOnTimeout(this, &StoredPicture::load);
}

void StoredPicture::paint(QPainter* painter) {
  if (picture_.isNull()) return;
  painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
  // A brush instead of a clip, whose edges would be jagged.
  QBrush brush(picture_);
  brush.setTransform(
      QTransform::fromScale(width() / picture_.width(), height() / picture_.height()));
  painter->fillPath(continuousRectangle(QRectF(0, 0, width(), height()), radius_), brush);
}

void StoredPicture::componentComplete() {
  PaintedItem::componentComplete();
  load();
}

void StoredPicture::geometryChange(const QRectF& now, const QRectF& before) {
  PaintedItem::geometryChange(now, before);
  if (now.size() != before.size()) load();
}

void StoredPicture::loadSoon() {
  if (picture_.isNull())
    load();
  else
    rest_.start();
}

void StoredPicture::load() {
  update();
  if (!isComponentComplete() || width() <= 0 || height() <= 0) return;
  const QSize pixels = pixelSize();
  Wish wish{{stem_.toStdString(), {styleNumber_}, dark_}, file_, standIn_, revision_, pixels};
  if (wish == wish_) return;
  const bool sameSize = wish.pixels == wish_.pixels;
  wish_ = std::move(wish);
  ++request_;
  asking_ = nullptr;
  if (!file_.isEmpty()) {
    asking_ = std::make_shared<const int>();
    Surroundings::of(*qmlEngine(this))
        .pictures()
        .loadFile(file_.toStdString(), revision_, pixels, asking_,
                  receiver(&StoredPicture::takeStored));
    return;
  }
  if (styleNumber_ < 0) {
    takeStored(request_, {});
    return;
  }
  Surroundings::of(*qmlEngine(this))
      .pictures()
      .load(wish_.name, pixels, sameSize ? shown_ : std::nullopt,
            receiver(&StoredPicture::takeStored));
}

std::function<void(LoadedPicture)> StoredPicture::receiver(Take take) {
  return [self = QPointer(this), request = request_, take](const LoadedPicture& picture) {
    QMetaObject::invokeMethod(
        QCoreApplication::instance(),
        [self, request, take, picture] {
          if (self) (self.data()->*take)(request, picture);
        },
        Qt::QueuedConnection);
  };
}

void StoredPicture::takeStored(int request, const LoadedPicture& picture) {
  if (request != request_) return;
  missing_ = picture.pixels.isNull();
  if (missing_ && !standIn_.isEmpty()) {
    Surroundings::of(*qmlEngine(this))
        .pictures()
        .loadAsset(standIn_, wish_.pixels, receiver(&StoredPicture::takeStandIn));
  } else {
    show(picture);
  }
}

void StoredPicture::takeStandIn(int request, const LoadedPicture& picture) {
  if (request == request_) show(picture);
}

void StoredPicture::show(const LoadedPicture& picture) {
  picture_ = picture.pixels;
  shown_ = picture_.isNull() ? std::nullopt : picture.file;
  Q_EMIT readyChanged();
  update();
}

} // namespace vitrelle::ui
