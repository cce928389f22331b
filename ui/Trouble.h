// Tells the user when nothing can be stored any more. Screens say nothing of it: they go on with
// what is there.
#pragma once

#include "core/platform/Platform.h"

#include <functional>

namespace vitrelle::ui {

/// The platform, with `tell` called at the first write to the store or the files that fails, and
/// again only after one that succeeded.
Platform withTroubleTold(Platform platform, std::function<void(const Failure&)> tell);

} // namespace vitrelle::ui
