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

/// Looks for it on the system's bus and calls back once. Connecting to a bus may take longer than
/// any answer of it, so that has a thread of its own too.
Subscription lookForService(const EventLoop& loop, std::chrono::milliseconds patience,
                            std::function<void(bool)> done);

/// Calls back with each position that the service on the system's bus tells of; first with the last
/// one that any program of this user was told by way of Qt, which keeps that in his data folder.
/// The service is asked on a thread of its own: each question may take a while. Needs a
/// QCoreApplication.
Subscription followDesktop(const EventLoop& loop,
                           std::function<void(const Coordinate&)> onPosition);

} // namespace vitrelle::host
