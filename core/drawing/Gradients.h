// Gradients that shapes are filled with.
#pragma once

#include "core/platform/DisplayList.h"

namespace vitrelle {

/// The system's own gradient of a colour, from top to bottom in units of a shape's room: lighter
/// above, the colour itself below.
LinearGradient gradientOf(const PlatformColour& colour);

/// One that is in units of the box, in points.
LinearGradient stretched(LinearGradient gradient, const PointRect& box);

} // namespace vitrelle
