// Dates and times in the words of the user's language.
#pragma once

#include "core/platform/Platform.h"

#include <string>

namespace vitrelle::host {

/// Puts the words into a platform.
void useDateWords(Platform& platform);

/// The name that the formatter knows a locale of the environment by, such as "de_DE.UTF-8@euro".
/// One without a language that it has words for is American English.
std::string formatterLocale(const std::string& name);

} // namespace vitrelle::host
