// A display list taken apart into what a painter does one after the other. Groups that only move,
// turn or scale their items vanish on the way; the others know what part of the picture they need a
// canvas of their own for.
#pragma once

#include "core/platform/DisplayList.h"
#include "core/platform/Symbols.h"

#include <QImage>
#include <QPainter>
#include <QRect>
#include <QTransform>

#include <functional>
#include <vector>

namespace vitrelle::host {

/// Something to be painted, in pixels of the whole picture.
struct Ink {
  QRectF bounds;
  bool once; ///< whether it lays no paint over its own, so that it can be faded as it is painted
  /// The painter is in those pixels; `visible` is what can be seen of them.
  std::function<void(QPainter& painter, const QRect& visible)> paint;
};
using Inks = std::vector<Ink>;

/// `scale` is in pixels per point.
Inks inksOf(const DisplayList& list, const Symbols& symbols, const QTransform& toPixels,
            double scale);

QImage transparent(const QSize& size);

/// Paints on the part of the picture that begins at `corner` and is as large as the canvas.
void paintOn(QImage& canvas, const QPoint& corner, const Inks& inks);

} // namespace vitrelle::host
