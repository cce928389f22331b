// The installed fonts, by the names that the logic knows them by.
#pragma once

#include "core/platform/DisplayList.h"
#include "core/platform/Fonts.h"

#include <QFont>

namespace vitrelle::host {

Fonts makeFonts();

/// The face of a font, without hinting, its size in pixels. A name that is not installed gives the
/// system's face.
QFont faceOf(const Font& font, double pixelsPerPoint);

} // namespace vitrelle::host
