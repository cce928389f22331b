#include "ui/parts/SymbolItem.h"

#include "ui/Shell.h"

#include <QPainter>
#include <QQmlEngine>

#include <algorithm>

namespace vitrelle::ui {

namespace {

/// How much thicker all lines are, in units of a symbol 16 high.
qreal thickening(int weight) {
  return std::max(weight - 400, 0) / 500.0 * 0.9;
}

QPainterPath painterPath(const Path& path, FillRule rule) {
  QPainterPath result;
  result.setFillRule(rule == FillRule::evenOdd ? Qt::OddEvenFill : Qt::WindingFill);
  const auto point = [](PathPoint p) { return QPointF(p.x, p.y); };
  std::size_t next = 0;
  for (const PathCommand command : path.commands) {
    const PathPoint* points = path.points.data() + next;
    switch (command) {
    case PathCommand::move:
      result.moveTo(point(points[0]));
      break;
    case PathCommand::line:
      result.lineTo(point(points[0]));
      break;
    case PathCommand::cubic:
      result.cubicTo(point(points[0]), point(points[1]), point(points[2]));
      break;
    case PathCommand::close:
      result.closeSubpath();
      break;
    }
    next += pointCount(command);
  }
  return result;
}

} // namespace

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
        Shell::of(*qmlEngine(this)).platform().symbols.outline(name_.toStdString());
    path_ = painterPath(symbol.path, symbol.rule);
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
  if (const qreal more = thickening(weight_); more > 0) {
    painter->strokePath(path_, QPen(colour_, more, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  }
}

} // namespace vitrelle::ui
