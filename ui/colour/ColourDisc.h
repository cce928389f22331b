// A round sample of a colour; a transparent one shows a chequered ground.
#pragma once

#include "ui/parts/PaintedItem.h"

#include <QColor>

namespace vitrelle::ui {

class ColourDisc : public vitrelle::ui::PaintedItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QColor colour MEMBER colour_ NOTIFY changed)
  /// A ring of all hues around it, which says that the colour can be chosen.
  Q_PROPERTY(bool rainbow MEMBER rainbow_ NOTIFY changed)
  /// Whether what is transparent shows the ground.
  Q_PROPERTY(bool chequered MEMBER chequered_ NOTIFY changed)

 public:
  explicit ColourDisc(QQuickItem* parent = nullptr);

 Q_SIGNALS:
  void changed();

 protected:
  void paint(QPainter* painter) override;

 private:
  QColor colour_;
  bool rainbow_ = false;
  bool chequered_ = false;
};

} // namespace vitrelle::ui
