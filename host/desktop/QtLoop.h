// The event loop of programs with a window, and of others that need Qt.
#pragma once

#include "host/desktop/EventLoop.h"

namespace vitrelle::host {

/// Qt's, of the thread that has the application object.
EventLoop makeQtLoop();

/// Runs it until a signal asks the program to end, or `endQtLoop` is called.
void runQtLoop();
void endQtLoop();

} // namespace vitrelle::host
