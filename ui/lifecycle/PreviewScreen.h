// A family's current style on every wallpaper, as QML sees it.
#pragma once

#include "core/faces/FamilyScreens.h"
#include "ui/lifecycle/FamilyWords.h"
#include "ui/parts/FaceItem.h"

#include <QObject>
#include <QQmlEngine>
#include <QRectF>

#include <memory>

namespace vitrelle::ui {

class PreviewScreen : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the family makes it")
  Q_PROPERTY(vitrelle::ui::FamilyWords words READ words CONSTANT)
  Q_PROPERTY(vitrelle::ui::Face face READ face NOTIFY changed)
  Q_PROPERTY(QList<vitrelle::ui::BackdropName> pages READ pages NOTIFY changed)
  Q_PROPERTY(qreal pageWidth READ pageWidth CONSTANT)
  Q_PROPERTY(qreal pageHeight READ pageHeight CONSTANT)
  Q_PROPERTY(qreal pageSpacing READ pageSpacing CONSTANT)
  Q_PROPERTY(QRectF widgetBox READ widgetBox CONSTANT)

 public:
  PreviewScreen(const Platform& platform, const FamilyScreens& family)
      : screen_(family.preview(platform)), view_(screen_->onChange([this] { Q_EMIT changed(); })) {}

  FamilyWords words() const { return FamilyWords(screen_->words()); }
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
  std::unique_ptr<StylePreview> screen_;
  Subscription view_;
};

} // namespace vitrelle::ui
