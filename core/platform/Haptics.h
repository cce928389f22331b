// Feedback that is felt instead of seen.
#pragma once

#include <functional>

namespace vitrelle {

struct Haptics {
  std::function<void()> success;
  std::function<void()> error;
  std::function<void()> lightImpact;
  std::function<void()> mediumImpact;
};

} // namespace vitrelle
