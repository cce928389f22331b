// A family's current style on every wallpaper, as QML sees it.
#pragma once

#include "core/lifecycle/StylePreview.h"
#include "ui/lifecycle/StyleScreen.h"
#include "ui/parts/FaceItem.h"

#include <QRectF>

#include <memory>
#include <utility>

namespace vitrelle::ui {

class PreviewScreen : public vitrelle::ui::StyleScreen {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the flow makes it")
  Q_PROPERTY(vitrelle::ui::Face face READ face NOTIFY changed)
  Q_PROPERTY(QList<vitrelle::ui::BackdropName> pages READ pages NOTIFY changed)
  Q_PROPERTY(qreal pageWidth READ pageWidth NOTIFY changed)
  Q_PROPERTY(qreal pageHeight READ pageHeight NOTIFY changed)
  Q_PROPERTY(qreal pageSpacing READ pageSpacing CONSTANT)
  Q_PROPERTY(QRectF widgetBox READ widgetBox NOTIFY changed)

 public:
  explicit PreviewScreen(std::shared_ptr<StylePreview> screen)
      : StyleScreen(screen->family(), "preview"),
        screen_(std::move(screen)),
        view_(screen_->onChange([this] { Q_EMIT changed(); })) {}

  Face face() const;
  QList<BackdropName> pages() const;
  qreal pageWidth() const { return screen_->pageSize().width; }
  qreal pageHeight() const { return screen_->pageSize().height; }
  static qreal pageSpacing() { return StylePreview::pageSpacing; }
  QRectF widgetBox() const;

  Q_INVOKABLE void appear() { screen_->appear(); }

 Q_SIGNALS:
  void changed();

 private:
  std::shared_ptr<StylePreview> screen_;
  Subscription view_;
};

} // namespace vitrelle::ui
