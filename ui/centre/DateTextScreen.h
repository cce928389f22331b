// The screen of the plain date as QML sees it.
#pragma once

#include "core/centre/CustomDateTextView.h"
#include "ui/lifecycle/FamilyWords.h"
#include "ui/parts/FaceItem.h"

#include <QColor>
#include <QObject>
#include <QQmlEngine>

namespace vitrelle::ui {

class DateTextScreen : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the shell makes it")
  Q_PROPERTY(QColor colour READ colour WRITE setColour NOTIFY changed)
  Q_PROPERTY(int size READ size WRITE setSize NOTIFY changed)
  Q_PROPERTY(int lowestSize READ lowestSize CONSTANT)
  Q_PROPERTY(int highestSize READ highestSize CONSTANT)
  Q_PROPERTY(QString font READ font NOTIFY changed)
  Q_PROPERTY(bool showingFontPicker READ isShowingFontPicker NOTIFY changed)
  Q_PROPERTY(vitrelle::ui::Face face READ face NOTIFY changed)
  Q_PROPERTY(vitrelle::ui::BackdropName slice READ slice NOTIFY changed)
  /// What covers the slice; transparent while nothing does.
  Q_PROPERTY(QColor cover READ cover NOTIFY changed)
  /// The grey frame of the preview.
  Q_PROPERTY(vitrelle::ui::Face ground READ ground CONSTANT)
  Q_PROPERTY(qreal previewWidth READ previewWidth CONSTANT)
  Q_PROPERTY(qreal previewHeight READ previewHeight CONSTANT)

 public:
  explicit DateTextScreen(const Platform& platform);

  QColor colour() const;
  void setColour(const QColor& colour);
  /// A number in QML has 32 bits, one in the store may have more.
  int size() const;
  void setSize(int size) { screen_.setDateFontSize(size); }
  static int lowestSize() { return static_cast<int>(CustomDateTextView::sizes.lowest); }
  static int highestSize() { return static_cast<int>(CustomDateTextView::sizes.highest); }
  QString font() const { return QString::fromStdString(screen_.dateFontPicked()); }
  bool isShowingFontPicker() const { return screen_.showingFontPicker(); }
  Face face() const { return Face::of(screen_.face(previewSize_)); }
  BackdropName slice() const { return BackdropName::of(screen_.img()); }
  QColor cover() const;
  Face ground() const { return ground_; }
  qreal previewWidth() const { return previewSize_.width; }
  qreal previewHeight() const { return previewSize_.height; }

  Q_INVOKABLE void appear() { screen_.appear(); }
  Q_INVOKABLE void pickFont() { screen_.pickFont(); }
  Q_INVOKABLE void dismissFontPicker() { screen_.dismissFontPicker(); }

 Q_SIGNALS:
  void changed();

 private:
  CustomDateTextView screen_;
  PointSize previewSize_;
  Face ground_;
  Subscription view_;
};

} // namespace vitrelle::ui
