// What the application asks of the system for itself.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace vitrelle {

/// What is at the root of a window, for those who present something over it. Only the system can
/// make anything of it.
struct ViewController {
  std::uintptr_t handle = 0;
  bool operator==(const ViewController&) const = default;
};

/// As the platform numbers them. Others may come.
enum class ActivationState : std::int32_t {
  unattached = -1,
  foregroundActive = 0,
  foregroundInactive = 1,
  background = 2,
};

/// What the application shows itself in.
struct Scene {
  ActivationState activationState = ActivationState::unattached;
  bool isWindowScene = true;
  bool operator==(const Scene&) const = default;
};

struct Application {
  /// Puts the application into the background at once; the process stays alive.
  std::function<void()> suspend;
  /// Of the first key window of the first connected window scene; nothing while there is none.
  std::function<std::optional<ViewController>()> rootViewController;
  std::function<std::vector<Scene>()> connectedScenes;
};

} // namespace vitrelle
