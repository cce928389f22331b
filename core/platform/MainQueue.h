// Work that waits for its time on the main thread.
#pragma once

#include "core/platform/Subscription.h"

#include <functional>

namespace vitrelle {

struct MainQueue {
  /// Calls once, so many seconds from now, unless the subscription ends before.
  std::function<Subscription(double seconds, std::function<void()>)> asyncAfter;
};

} // namespace vitrelle
