// The symbols of this host, drawn from an open icon set that the build turns into a table.
#pragma once

#include "core/platform/Symbols.h"

namespace vitrelle::host {

Symbols makeSymbols();

} // namespace vitrelle::host
