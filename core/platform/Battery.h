// How full the device's battery is.
#pragma once

#include "core/platform/Subscription.h"

#include <functional>

namespace vitrelle {

/// A level that can't be known: there is no battery, or it is not monitored.
inline constexpr float unknownBatteryLevel = -1;

struct Battery {
  /// Off at the start; a level is known only while it is on.
  std::function<void(bool)> setMonitoringEnabled;
  /// From 0 to 1, or `unknownBatteryLevel`. Several batteries count as one.
  std::function<float()> level;
  /// Calls with the present level before it returns, then with each other one.
  std::function<Subscription(std::function<void(float)> subscriber)> watch;
};

} // namespace vitrelle
