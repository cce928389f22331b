// The machine's battery, as the desktop's power service tells of it, else as the kernel does.
// Nothing is asked again and again: both say when something changes.
#pragma once

#include "core/platform/Battery.h"
#include "host/Host.h"

#include <QDBusConnection>

#include <chrono>
#include <functional>
#include <string>

namespace vitrelle::host {

/// Where a battery is looked for.
struct PowerSources {
  /// Calls back once, sooner or later or before it returns, with the bus that the power service is
  /// on. Asked for at the first monitoring; until then the kernel alone is asked.
  std::function<Subscription(std::function<void(const QDBusConnection&)>)> connect;
  /// For an answer of the service, which the window may have to wait for.
  std::chrono::milliseconds patience = std::chrono::milliseconds(250);
  std::string supplies = "/sys/class/power_supply";
  /// Calls back when something in that folder changes.
  std::function<Subscription(std::function<void()>)> watchSupplies;
};

/// What the power service tells comes through Qt's event loop. Needs a QCoreApplication for as long
/// as it is used.
Battery makeBattery(PowerSources sources);

/// Puts the machine's battery into a platform, unless the options tell a level.
void useBattery(Platform& platform, const HostOptions& options, const EventLoop& loop);
/// The same in a program that ends at once: at the first monitoring it waits for the bus, in its
/// loop, for a quarter of a second.
void useBatteryAtOnce(Platform& platform, const HostOptions& options, const EventLoop& loop);

} // namespace vitrelle::host
