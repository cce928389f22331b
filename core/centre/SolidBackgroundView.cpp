#include "core/centre/SolidBackgroundView.h"

namespace vitrelle {

void SolidBackgroundView::appear() {
  constexpr StyleNumber firstStyle{};
  img_ = findSlice(platform_, WidgetLocationImageNames::mediumTop, firstStyle,
                   currentAppearance(platform_));
  changed();
}

} // namespace vitrelle
