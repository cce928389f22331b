// An outline of the logic in the form that Qt paints.
#pragma once

#include "core/platform/Path.h"

#include <QPainterPath>

namespace vitrelle::ui {

QPainterPath painterPath(const Path& path, FillRule rule);

} // namespace vitrelle::ui
