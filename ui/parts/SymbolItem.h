// One symbol by name, filled in one colour.
#pragma once

#include "ui/parts/PaintedItem.h"

#include <QColor>
#include <QPainterPath>
#include <QString>

namespace vitrelle::ui {

class SymbolItem : public vitrelle::ui::PaintedItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QString name MEMBER name_ NOTIFY changed)
  /// Height in points; the width follows.
  Q_PROPERTY(qreal size MEMBER size_ NOTIFY changed)
  /// 400 is regular; a heavier symbol has thicker lines.
  Q_PROPERTY(int weight MEMBER weight_ NOTIFY changed)
  Q_PROPERTY(QColor colour MEMBER colour_ NOTIFY changed)

 public:
  explicit SymbolItem(QQuickItem* parent = nullptr);

 Q_SIGNALS:
  void changed();

 protected:
  void paint(QPainter* painter) override;
  void componentComplete() override;

 private:
  void outline();

  QString name_;
  qreal size_ = 17;
  int weight_ = 400;
  QColor colour_ = Qt::white;
  QString outlined_; ///< the name that the path is of
  QPainterPath path_;
  QSizeF box_{16, 16}; ///< in the path's units
};

} // namespace vitrelle::ui
