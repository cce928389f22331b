// Whether this is a build that is handed to testers.
#pragma once

#include "core/platform/Platform.h"

namespace vitrelle {

/// By the name of the store's receipt; worked out once for a platform, at first use.
bool isBetaBuild(const Platform& platform);

} // namespace vitrelle
