// Requests that the widgets be drawn anew, as they pass from process to process: each rewrites one
// file, and whoever draws watches it.
#pragma once

#include "core/platform/WidgetCenter.h"
#include "host/desktop/EventLoop.h"
#include "host/files/HomeFolder.h"

namespace vitrelle::host {

WidgetCenter makeWidgetCenter(const HomeFolder& home, const EventLoop& loop);

} // namespace vitrelle::host
