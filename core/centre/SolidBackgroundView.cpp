#include "core/centre/SolidBackgroundView.h"

namespace vitrelle {

void SolidBackgroundView::appear() {
  constexpr std::int64_t firstStyle = 0;
  img_ = findSlice(platform_, WidgetLocationImageNames::mediumTop, firstStyle,
                   currentAppearance(platform_));
  changed();
}

} // namespace vitrelle
