// Lets screens be drawn without a trace in the home: what they write stays in memory, and they read
// it there, so that they go on as if it had been written.
#pragma once

#include "core/platform/Platform.h"

namespace vitrelle::ui {

/// The platform, with a store and pictures of which nothing ever reaches the home, and without the
/// lock and the watching of the home, which would make it. What others write meanwhile is read.
Platform withNothingWritten(Platform platform);

} // namespace vitrelle::ui
