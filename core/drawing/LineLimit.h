// Words that take no more lines than they are allowed, whatever room there is below.
#pragma once

#include "core/drawing/View.h"

namespace vitrelle {

/// What does not fit into so many lines of a text is cut. Words in one line are never broken, not
/// even behind a hyphen or a sign.
View inLines(const View& text, int most);

} // namespace vitrelle
