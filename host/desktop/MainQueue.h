// Work that waits for its time, over whichever event loop the program has.
#pragma once

#include "core/platform/MainQueue.h"
#include "host/desktop/EventLoop.h"

namespace vitrelle::host {

MainQueue makeMainQueue(const EventLoop& loop);

} // namespace vitrelle::host
