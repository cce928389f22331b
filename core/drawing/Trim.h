// A part of an outline, measured along its length: rings and gauges are drawn as far as they are
// filled.
#pragma once

#include "core/platform/Path.h"

namespace vitrelle {

/// What lies between two fractions of the path's length, from where the pen first stands. There is
/// nothing before 0 and beyond 1; where the end is not behind the start, nothing is left. Only the
/// whole path is closed.
Path trimmed(const Path& path, double from, double to);

} // namespace vitrelle
