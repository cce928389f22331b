// The frame in which the screens that set one value for all widgets show what comes of it: a slice,
// or grey where there is none, with a shadow.
#pragma once

#include "core/drawing/View.h"
#include "core/platform/Platform.h"

namespace vitrelle {

/// As wide as a form's panels, in points.
PointSize settingPreviewSize(const Platform& platform);

/// Of its corners, which are continuous.
inline constexpr double settingPreviewRadius = 15;

/// The grey frame and its shadow.
View settingPreviewGround();

} // namespace vitrelle
