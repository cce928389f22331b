// The store's request to rate the application.
#pragma once

#include "core/platform/Application.h"

#include <functional>

namespace vitrelle {

struct ReviewController {
  /// Asks on the scene, or does not: the system decides, and tells nobody.
  std::function<void(const Scene&)> requestReview;
};

} // namespace vitrelle
