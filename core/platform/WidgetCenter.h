// The platform's centre of widgets.
#pragma once

#include <functional>

namespace vitrelle {

struct WidgetCenter {
  /// Asks that every widget be drawn anew from the store and the files.
  std::function<void()> reloadAllTimelines;
};

} // namespace vitrelle
