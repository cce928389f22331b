// Words of two fonts in one line.
#pragma once

#include "core/drawing/View.h"

namespace vitrelle {

struct TextRun {
  std::string text = {};
  Font font = {};
  PlatformColour colour = {};
};

/// The tail follows the words, its letters standing as high as theirs. It is never broken, and
/// spaces at its end count.
View joined(const TextRun& words, const TextRun& tail);

} // namespace vitrelle
