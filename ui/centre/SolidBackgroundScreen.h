// The screen of the solid background as QML sees it.
#pragma once

#include "core/centre/SolidBackgroundView.h"
#include "ui/lifecycle/FamilyWords.h"
#include "ui/parts/FaceItem.h"

#include <QColor>
#include <QObject>
#include <QQmlEngine>

namespace vitrelle::ui {

class SolidBackgroundScreen : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the shell makes it")
  Q_PROPERTY(bool on READ isOn WRITE setOn NOTIFY changed)
  Q_PROPERTY(QColor colour READ colour WRITE setColour NOTIFY changed)
  Q_PROPERTY(vitrelle::ui::BackdropName slice READ slice NOTIFY changed)
  /// The grey frame of the preview.
  Q_PROPERTY(vitrelle::ui::Face ground READ ground CONSTANT)
  Q_PROPERTY(qreal previewWidth READ previewWidth CONSTANT)
  Q_PROPERTY(qreal previewHeight READ previewHeight CONSTANT)

 public:
  explicit SolidBackgroundScreen(const Platform& platform);

  bool isOn() const { return screen_.fillColour(); }
  void setOn(bool on) { screen_.setFillColour(on); }
  QColor colour() const;
  void setColour(const QColor& colour);
  BackdropName slice() const { return BackdropName::of(screen_.img()); }
  Face ground() const { return ground_; }
  qreal previewWidth() const { return previewSize_.width; }
  qreal previewHeight() const { return previewSize_.height; }

  Q_INVOKABLE void appear() { screen_.appear(); }

 Q_SIGNALS:
  void changed();

 private:
  SolidBackgroundView screen_;
  PointSize previewSize_;
  Face ground_;
  Subscription view_;
};

} // namespace vitrelle::ui
