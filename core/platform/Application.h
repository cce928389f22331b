// What the application asks of the system for itself.
#pragma once

#include <functional>

namespace vitrelle {

struct Application {
  /// Puts the application into the background at once; the process stays alive.
  std::function<void()> suspend;
};

} // namespace vitrelle
