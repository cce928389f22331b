#include "ui/parts/SymbolItem.h"

#include "host/painting/PainterValues.h"
#include "ui/parts/Surroundings.h"

#include <QPainter>
#include <QQmlEngine>

#include <algorithm>

namespace vitrelle::ui {

SymbolItem::SymbolItem(QQuickItem* parent) : PaintedItem(parent) {
  connect(this, &SymbolItem::changed, this, &SymbolItem::outline);
}

void SymbolItem::componentComplete() {
  PaintedItem::componentComplete();
  outline();
}

void SymbolItem::outline() {
  if (!isComponentComplete()) return;
  if (name_ != outlined_) {
    outlined_ = name_;
    const SymbolOutline symbol =
        Surroundings::of(*qmlEngine(this)).platform().symbols.outline(name_.toStdString());
    path_ = host::qPath(symbol.path, symbol.rule);
    box_ = QSizeF(symbol.width, symbol.height);
  }
  setImplicitSize(size_ * box_.width() / box_.height(), size_);
  update();
}

void SymbolItem::paint(QPainter* painter) {
  painter->setRenderHint(QPainter::Antialiasing);
  const qreal scale = std::min(width() / box_.width(), height() / box_.height());
  painter->translate((width() - box_.width() * scale) / 2, (height() - box_.height() * scale) / 2);
  painter->scale(scale, scale);
  painter->fillPath(path_, colour_);
  if (const qreal more = host::symbolEdge(weight_, box_.height()); more > 0) {
    painter->strokePath(path_, QPen(colour_, more, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  }
}

} // namespace vitrelle::ui
