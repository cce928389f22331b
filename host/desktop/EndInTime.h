// An end that waits for nobody. Threads that hang in the system, such as over a name that no server
// tells or a file on a lost network drive, can't be stopped, and libraries wait for theirs.
#pragma once

#include <chrono>

namespace vitrelle::host {

/// From now on the process ends within that time, with this status: by itself, or else without what
/// is left to do. For when everything is stored and written.
void endInTime(std::chrono::milliseconds time, int status);

} // namespace vitrelle::host
