// What the logic speaks in, in the forms that Qt paints: for faces and for the window's own items.
#pragma once

#include "core/platform/Image.h"
#include "core/platform/Path.h"
#include "core/platform/PlatformColour.h"

#include <QColor>
#include <QImage>
#include <QPainterPath>

namespace vitrelle::host {

QPainterPath qPath(const Path& path, FillRule rule = FillRule::nonZero);

QColor qColour(const PlatformColour& colour);
/// From the 16 bits of each component: floating-point numbers of Qt's would not be the shortest.
PlatformColour platformColour(const QColor& colour);

/// The bitmap's own pixels, which are kept; a copy where they do not lie as Qt's do, in steps of
/// pixels.
QImage qImage(const Bitmap& bitmap);

/// How wide a line around a symbol makes it as heavy as the weight. Its outline has one weight,
/// 400.
double symbolEdge(int weight, double symbolHeight);

} // namespace vitrelle::host
