// Puts glyphs into the shapes that symbols come in: a ring, a disc, a square, a filled square.
#pragma once

#include "core/platform/Symbols.h"

#include <vector>

namespace vitrelle::host {

enum class Enclosure { circle, filledCircle, square, filledSquare };

/// The glyph within the shape, knocked out of a filled one.
SymbolOutline enclosed(const Path& glyph, Enclosure enclosure);

/// Glyphs in a row, all of one height.
Path spelled(const std::vector<Path>& glyphs);

} // namespace vitrelle::host
