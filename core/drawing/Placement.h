// Where a smaller thing lies in the room around it.
#pragma once

#include "core/drawing/View.h"

namespace vitrelle {

/// How far from the start of the room.
double placed(Place place, double room, double taken);

PointRect aligned(const Alignment& alignment, const PointRect& box, const PointSize& own);

} // namespace vitrelle
