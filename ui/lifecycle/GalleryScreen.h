// The gallery of a family as QML sees it.
#pragma once

#include "core/lifecycle/StyleGallery.h"
#include "ui/lifecycle/StyleScreen.h"
#include "ui/lifecycle/TileList.h"

#include <memory>

namespace vitrelle::ui {

class GalleryScreen : public vitrelle::ui::StyleScreen {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the flow makes it")
  Q_PROPERTY(vitrelle::ui::TileList* tiles READ tiles CONSTANT)
  /// What stands in the tiles' place; empty when they are there.
  Q_PROPERTY(QString placeholder READ placeholder NOTIFY changed)
  Q_PROPERTY(int revision READ revision NOTIFY changed)
  Q_PROPERTY(int columns READ columns CONSTANT)
  Q_PROPERTY(qreal tileSide READ tileSide NOTIFY changed)
  Q_PROPERTY(qreal spacing READ spacing NOTIFY changed)
  Q_PROPERTY(qreal tickSize READ tickSize CONSTANT)

 public:
  explicit GalleryScreen(std::shared_ptr<StyleGallery> screen);

  TileList* tiles() { return &tiles_; }
  QString placeholder() const { return qText(screen_->placeholder().value_or("")); }
  int revision() const { return revision_; }
  static int columns() { return StyleGallery::columns; }
  qreal tileSide() const { return screen_->tileSide(); }
  qreal spacing() const { return screen_->spacing(); }
  static qreal tickSize() { return StyleGallery::tickSize; }

  Q_INVOKABLE void appear() {
    ++revision_;
    screen_->appear();
  }
  Q_INVOKABLE void tapTick(int index) { screen_->tapTick({index}); }

 Q_SIGNALS:
  void changed();

 private:
  std::shared_ptr<StyleGallery> screen_;
  TileList tiles_;
  int revision_ = 0; ///< of the pictures
  Subscription view_;
};

} // namespace vitrelle::ui
