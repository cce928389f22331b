// What the application asks of the system for itself.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>

namespace vitrelle {

/// What is at the root of a window, for those who present something over it. Only the system can
/// make anything of it.
struct ViewController {
  std::uintptr_t handle = 0;
  bool operator==(const ViewController&) const = default;
};

struct Application {
  /// Puts the application into the background at once; the process stays alive.
  std::function<void()> suspend;
  /// Of the first key window of the first connected window scene; nothing while there is none.
  std::function<std::optional<ViewController>()> rootViewController;
};

} // namespace vitrelle
