#include "core/families/text/CustomTextPreviewView.h"

namespace vitrelle {

View CustomTextPreviewView::view() const {
  const View words =
      vitrelle::text(text, Font{.name = fontName, .size = static_cast<double>(textSize)}, colour);
  if (!showShadow) return words;
  return shadowed(words, {.colour = {0, 0, 0, 0.33}, .radius = 5});
}

} // namespace vitrelle
