// Lets one program at a time change what belongs together in a home, such as the count of styles
// and the files that it counts.
#pragma once

#include "core/platform/Files.h"
#include "host/files/HomeFolder.h"

namespace vitrelle::host {

/// Makes the home if need be. The kernel lets go of a lock whose process ended, however it did.
/// Two locks of one process keep each other out too.
Result<HomeLock> lockHome(const HomeFolder& home, double patienceSeconds);

} // namespace vitrelle::host
