// The platform's centre of widgets.
#pragma once

#include "core/platform/Subscription.h"

#include <functional>

namespace vitrelle {

struct WidgetCenter {
  /// Asks that every widget be drawn anew from the store and the files.
  std::function<void()> reloadAllTimelines;

  /// Tells of each later request, whichever process made it, on the main thread. Several quick ones
  /// may arrive as one.
  std::function<Subscription(std::function<void()>)> watchReloads;
};

} // namespace vitrelle
