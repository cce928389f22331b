// Draws display lists, and measures the text in them.
#pragma once

#include "core/platform/Drawing.h"
#include "core/platform/Symbols.h"

namespace vitrelle::host {

/// Needs a QGuiApplication for as long as it is used.
Drawing makeDrawing(const Symbols& symbols);

} // namespace vitrelle::host
