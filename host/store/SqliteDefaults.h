// The two stores of the program, each in a database file of its own in the home folder, and the
// watching of what any process writes there.
#pragma once

#include "core/platform/Defaults.h"
#include "host/desktop/EventLoop.h"

#include <string>

namespace vitrelle::host {

/// Values may be read and written on any thread. Watching is for the main thread, and every change
/// is delivered inside the loop, those of this process too, never from within a write. Watching
/// ends with the last copy of the result; the loop must outlive all subscriptions and that copy.
/// Another program's lock is waited for so long, once: what could not be read or written is then
/// tried without waiting until it works.
Defaults makeSqliteDefaults(std::string home, EventLoop loop, int patienceMilliseconds = 5000);

} // namespace vitrelle::host
