// The outlines that faces are built from.
#pragma once

#include "core/platform/Geometry.h"
#include "core/platform/Path.h"

namespace vitrelle::shapes {

Path rectangle(const PointRect& box);

/// As large as fits into the middle of the box, from its right end clockwise.
Path circle(const PointRect& box);

/// Corners that begin to bend early, so that edge and corner pass into each other: the form of the
/// phone's screen, its icons and its widgets. `radius` is that of the circle whose corner it looks
/// like; it is cut to half the shorter side, and the ends are then round. From the middle of the
/// right side clockwise.
Path continuousRectangle(const PointRect& box, double radius);

} // namespace vitrelle::shapes
