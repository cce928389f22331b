// The assigning of a widget style to a wallpaper style as QML sees it.
#pragma once

#include "core/lifecycle/StyleAssign.h"
#include "ui/lifecycle/StyleScreen.h"
#include "ui/parts/FaceItem.h"

#include <QList>
#include <QStringList>

#include <memory>

namespace vitrelle::ui {

class AssignScreen : public vitrelle::ui::StyleScreen {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the flow makes it")
  Q_PROPERTY(vitrelle::ui::Face face READ face NOTIFY changed)
  Q_PROPERTY(vitrelle::ui::BackdropName backdrop READ backdrop NOTIFY changed)
  Q_PROPERTY(qreal previewWidth READ previewWidth NOTIFY changed)
  Q_PROPERTY(qreal previewHeight READ previewHeight NOTIFY changed)
  Q_PROPERTY(QStringList options READ options NOTIFY changed)
  /// The wallpaper style's number of each option; -1 for the one that stands for none.
  Q_PROPERTY(QList<int> wallpapers READ wallpapers NOTIFY changed)
  /// Which of the options is picked; -1 when the wallpaper style that is picked does not exist.
  Q_PROPERTY(int picked READ picked NOTIFY changed)
  Q_PROPERTY(QString alertTitle READ alertTitle NOTIFY changed)
  Q_PROPERTY(QString alertMessage READ alertMessage NOTIFY changed)

 public:
  AssignScreen(const Platform& platform, std::shared_ptr<StyleAssign> screen);

  Face face() const { return Face::of(screen_->face(mediumPreviewSize(platform_))); }
  BackdropName backdrop() const { return BackdropName::of(screen_->img()); }
  qreal previewWidth() const { return mediumPreviewSize(platform_).width; }
  qreal previewHeight() const { return mediumPreviewSize(platform_).height; }
  QStringList options() const;
  QList<int> wallpapers() const;
  int picked() const;
  QString alertTitle() const { return qText(screen_->alert().value_or(Alert{}).title); }
  QString alertMessage() const { return qText(screen_->alert().value_or(Alert{}).message); }

  Q_INVOKABLE void appear() { screen_->appear(); }
  Q_INVOKABLE void pick(int option);
  Q_INVOKABLE void dismissAlert() { screen_->dismissAlert(); }

 Q_SIGNALS:
  void changed();

 private:
  const Platform& platform_;
  std::shared_ptr<StyleAssign> screen_;
  Subscription view_;
};

} // namespace vitrelle::ui
