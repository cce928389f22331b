#include "core/lifecycle/StyleColours.h"

#include "core/platform/FatalError.h"
#include "core/slicing/ImageLoader.h"

namespace vitrelle {

void StyleSecondStep::startSuggestions() {
  if (suggesting()) task_ = platform().mainQueue.asyncAfter(0, [this] { suggest(); });
}

void StyleSecondStep::suggest() {
  const auto screenshot = ImageLoader(platform())
                              .loadSlice(rawValue(WidgetLocationImageNames::fullImage),
                                         currentAppearance(platform()), styleInUse(platform()));
  if (!screenshot) fatalError("the style in use has no screenshot to suggest colours from");
  suggestions_.workOut(*screenshot, suggesting()->coloursAsked);
  changed();
}

} // namespace vitrelle
