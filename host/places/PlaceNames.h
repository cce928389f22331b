// Names of places without the network, so that no position leaves the machine for one: the towns of
// a list that the system has.
#pragma once

#include "core/platform/Geocoder.h"
#include "core/platform/Platform.h"
#include "host/desktop/EventLoop.h"

#include <string>

namespace vitrelle::host {

/// The list is read at the first question, and all are answered, on a thread of its own. What
/// `loop` refers to must outlive the operations.
Geocoder makeGeocoder(const EventLoop& loop, std::string folder = "/usr/share/libtimezonemap/ui");

void useGeocoder(Platform& platform, const EventLoop& loop);

} // namespace vitrelle::host
