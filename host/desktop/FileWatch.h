// Tells when a small file of the home was written anew, by whichever process.
#pragma once

#include "host/desktop/EventLoop.h"

#include <functional>
#include <string>

namespace vitrelle::host {

/// Calls back when a file of this name in the folder was closed after writing, or replaced by
/// another. The file need not be there yet. Nothing is told where the folder can't be watched.
Subscription watchFile(const std::string& path, const EventLoop& loop,
                       std::function<void()> onWritten);

} // namespace vitrelle::host
