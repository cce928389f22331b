// What the user has settled about his position, in a small file of the home.
#pragma once

#include "core/platform/LocationSettings.h"
#include "host/files/HomeFolder.h"

namespace vitrelle::host {

/// What is missing there or garbled is as it is before anything was settled.
LocationChoice keptChoice(const HomeFolder& home);

Status keepChoice(const HomeFolder& home, const LocationChoice& choice);

} // namespace vitrelle::host
