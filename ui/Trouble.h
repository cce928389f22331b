// Tells the user when what is stored can't be read, or nothing can be stored any more. Screens say
// nothing of it: they go on with what is there.
#pragma once

#include "core/platform/Platform.h"

#include <functional>

namespace vitrelle::ui {

enum class Trouble { reading, writing };

/// The platform, with `tell` called when a store or the files fail, once until the same works
/// again. A store that can't be read takes no writes; that is not told as well. `over` is called
/// when it works again.
Platform withTroubleTold(Platform platform,
                         std::function<void(Trouble trouble, const Failure& failure)> tell,
                         std::function<void()> over);

} // namespace vitrelle::ui
