// What the host needs of a program's event loop, whichever loop the program has.
#pragma once

#include "core/platform/Subscription.h"

#include <functional>

namespace vitrelle::host {

/// Both deliver on the main thread, inside the loop.
struct EventLoop {
  /// Calls back whenever the descriptor can be read. The descriptor stays the caller's.
  std::function<Subscription(int descriptor, std::function<void()>)> whenReadable;
  /// Calls back again and again at this distance.
  std::function<Subscription(double seconds, std::function<void()>)> every;
};

} // namespace vitrelle::host
