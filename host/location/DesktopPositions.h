// The desktop's location service.
#pragma once

#include "core/platform/Location.h"
#include "core/platform/Subscription.h"
#include "host/desktop/EventLoop.h"

#include <QDBusConnection>

#include <chrono>
#include <functional>

namespace vitrelle::host {

/// Whether the service runs on this bus, or can be started by it. Does not start it, and waits no
/// longer than so for the bus.
bool hasLocationService(const QDBusConnection& bus, std::chrono::milliseconds patience);

/// Calls back with each position that the service on the system's bus tells of; first with the last
/// one that any program of this user was told by way of Qt, which keeps that in his data folder.
/// The service is asked on a thread of its own: each question may take a while. Needs a
/// QCoreApplication.
Subscription followDesktop(const EventLoop& loop,
                           std::function<void(const Coordinate&)> onPosition);

} // namespace vitrelle::host
