// The batteries that the kernel tells of.
#pragma once

#include "core/platform/Subscription.h"
#include "host/desktop/EventLoop.h"

#include <functional>
#include <string>

namespace vitrelle::host {

/// How full the batteries of the machine itself are together, told by a folder such as
/// /sys/class/power_supply; `unknownBatteryLevel` where there is none. Those of mice and the like
/// do not count.
float batteryLevelIn(const std::string& folder);

/// Calls back when the kernel says that a battery or a charger has changed.
Subscription watchPowerSupplies(const EventLoop& loop, std::function<void()> onChange);

} // namespace vitrelle::host
