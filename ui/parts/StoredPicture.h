// A stored picture, or that of any file, on a screen, stretched into a rectangle with continuous
// corners.
#pragma once

#include "ui/parts/PaintedItem.h"
#include "ui/parts/PictureSource.h"

#include <QImage>
#include <QString>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>

namespace vitrelle::ui {

class StoredPicture : public vitrelle::ui::PaintedItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QString stem MEMBER stem_ NOTIFY asked)
  Q_PROPERTY(int styleNumber MEMBER styleNumber_ NOTIFY asked)
  Q_PROPERTY(bool dark MEMBER dark_ NOTIFY asked)
  /// Path of a picture file that is shown instead of a stored picture, filling the rectangle.
  Q_PROPERTY(QString file MEMBER file_ NOTIFY asked)
  /// Raised when the file may have been replaced.
  Q_PROPERTY(int revision MEMBER revision_ NOTIFY asked)
  Q_PROPERTY(qreal radius MEMBER radius_ NOTIFY asked)
  /// A picture of the program's own that is shown where there is none, filling the rectangle.
  Q_PROPERTY(QString standIn MEMBER standIn_ NOTIFY asked)
  /// Whether there is something to draw.
  Q_PROPERTY(bool ready READ isReady NOTIFY readyChanged)
  /// Whether it was looked for and is not to be had.
  Q_PROPERTY(bool missing READ isMissing NOTIFY readyChanged)

 public:
  explicit StoredPicture(QQuickItem* parent = nullptr);

  bool isReady() const { return !picture_.isNull(); }
  bool isMissing() const { return missing_; }

 Q_SIGNALS:
  void asked();
  void readyChanged();

 protected:
  void paint(QPainter* painter) override;
  void componentComplete() override;
  void geometryChange(const QRectF& now, const QRectF& before) override;
  void pixelsPerPointChanged() override { loadSoon(); }

 private:
  /// What a load depends on.
  struct Wish {
    PictureName name;
    QString file;
    QString standIn;
    int revision = 0;
    QSize pixels;
    bool operator==(const Wish&) const = default;
  };
  void load();
  /// When the size has come to rest: decoding takes longer than a frame.
  void loadSoon();
  using Take = void (StoredPicture::*)(int request, const LoadedPicture& picture);
  /// Hands a picture from another thread to this item, if it is still there.
  std::function<void(LoadedPicture)> receiver(Take take);
  void takeStored(int request, const LoadedPicture& picture);
  void takeStandIn(int request, const LoadedPicture& picture);
  void show(const LoadedPicture& picture);

  QString stem_ = QStringLiteral("original");
  int styleNumber_ = -1;
  QString file_;
  bool dark_ = false;
  int revision_ = 0;
  qreal radius_ = 0;
  QString standIn_;
  QImage picture_;
  std::optional<FileIdentity> shown_; ///< the file that `picture_` is of
  bool missing_ = false;
  Wish wish_;
  QTimer rest_;
  int request_ = 0;                   ///< the last; answers to earlier ones are dropped
  std::shared_ptr<const int> asking_; ///< there while a file's picture is still wanted
};

} // namespace vitrelle::ui
