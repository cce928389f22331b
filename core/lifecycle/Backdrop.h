// What stands behind a widget on the screens: a slice of the wallpaper, or what stands in for it.
#pragma once

#include "core/platform/Platform.h"
#include "core/slicing/WidgetLocation.h"
#include "core/store/Numbers.h"

#include <optional>
#include <string>

namespace vitrelle {

/// A stored picture by name. Where a screen has none of these, the picture "whats-new-bg" of the
/// program's own stands in.
struct SliceName {
  std::string stem;
  StyleNumber style = {};
  InterfaceStyle appearance = lightStyle;
  bool operator==(const SliceName&) const = default;
};

/// 2 in dark appearance, else 1.
InterfaceStyle currentAppearance(const Platform& platform);

/// The style in use; 0 where none is told.
StyleNumber styleInUse(const Platform& platform);

/// The slice's name if it can be loaded. Its pixels are not decoded.
std::optional<SliceName> findSlice(const Platform& platform, WidgetLocationImageNames slot,
                                   StyleNumber number, InterfaceStyle style);

/// The slice of the style in use in the present appearance.
std::optional<SliceName> currentSlice(const Platform& platform, WidgetLocationImageNames slot);

/// How large a medium widget is shown above a form, in points. The slice is stretched into it,
/// whatever the proportions of the phone's own widgets.
PointSize mediumPreviewSize(const Platform& platform);

/// How wide the panels of the forms are, and their medium widgets.
double panelWidth(const Platform& platform);

} // namespace vitrelle
