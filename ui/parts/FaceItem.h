// A display list on a screen, in the very pixels that every other program draws.
#pragma once

#include "ui/parts/PaintedItem.h"

#include "core/platform/DisplayList.h"

#include <QImage>
#include <QtQmlIntegration>

#include <memory>

namespace vitrelle::ui {

/// A display list as QML hands it on.
struct Face {
  Q_GADGET
  QML_VALUE_TYPE(face)

 public:
  std::shared_ptr<const DisplayList> list;

  static Face of(DisplayList list) {
    return {std::make_shared<const DisplayList>(std::move(list))};
  }
  bool operator==(const Face& other) const {
    return list == other.list || (list != nullptr && other.list != nullptr && *list == *other.list);
  }
};

class FaceItem : public vitrelle::ui::PaintedItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(vitrelle::ui::Face face READ face WRITE setFace NOTIFY changed)
  /// How far around the face's frame there is room, for shadows; whole points. The frame's corner
  /// is so far inside the item.
  Q_PROPERTY(qreal bleed MEMBER bleed_ NOTIFY changed)
  /// How much larger than told the face is drawn, bleed and all.
  Q_PROPERTY(qreal magnification MEMBER magnification_ NOTIFY changed)

 public:
  explicit FaceItem(QQuickItem* parent = nullptr);

  const Face& face() const { return face_; }
  void setFace(const Face& face);

 Q_SIGNALS:
  void changed();

 protected:
  QImage picture() override;

 private:
  Face face_;
  qreal bleed_ = 0;
  qreal magnification_ = 1;
};

} // namespace vitrelle::ui
