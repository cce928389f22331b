// Shadows of what is painted on a canvas.
#pragma once

#include "core/platform/DisplayList.h"

#include <QImage>
#include <QPainter>
#include <QRect>

namespace vitrelle::host {

/// The pixels that are not transparent, as a rectangle around them.
QRect inkOf(const QImage& canvas);

/// Where a shadow falls, in whole pixels.
QPoint offsetOf(const Shadow& shadow, double scale);

/// Draws the ink on the canvas as a shadow, as far as it is visible. `place` is where the canvas
/// lies on the painter; `scale` is in pixels per point.
void drawShadow(QPainter& painter, const QRect& visible, const QPoint& place, const QImage& canvas,
                const QRect& ink, const Shadow& shadow, double scale);

} // namespace vitrelle::host
