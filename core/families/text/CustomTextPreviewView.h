// The text of a Text widget, as the widget draws it and as every preview shows it.
#pragma once

#include "core/drawing/View.h"
#include "core/platform/PlatformColour.h"

#include <cstdint>
#include <string>

namespace vitrelle {

struct CustomTextPreviewView {
  std::string text;
  PlatformColour colour{1, 1, 1, 1};
  std::string fontName;       ///< PostScript name; empty for the system's face
  std::int64_t textSize = 18; ///< points
  bool showShadow = true;

  View view() const;
};

} // namespace vitrelle
