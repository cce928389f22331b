// The installed fonts, by the names that the logic knows them by.
#pragma once

#include "core/platform/DisplayList.h"
#include "core/platform/Fonts.h"

#include <QFont>

#include <string>

namespace vitrelle::host {

Fonts makeFonts();

/// The face of a font, without hinting, its size in pixels. A name that is not installed gives the
/// system's face.
QFont faceOf(const Font& font, double pixelsPerPoint);

/// The face that emoji in such a text are drawn in.
QFont emojiFaceOf(const Font& font, double pixelsPerPoint);

/// Finds what was installed since the program began, when this name is not known. To be called
/// where no picture is being painted, since it may have the texts on screen laid out anew.
void lookForFont(const std::string& postScriptName);

} // namespace vitrelle::host
