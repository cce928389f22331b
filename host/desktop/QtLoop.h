// The event loop of programs with a window.
#pragma once

#include "host/desktop/EventLoop.h"

namespace vitrelle::host {

/// Qt's, of the thread that has the application object.
EventLoop makeQtLoop();

} // namespace vitrelle::host
