// The present moment as clocks show it.
#pragma once

#include "core/platform/Platform.h"

#include <cstdint>
#include <string>

namespace vitrelle {

/// Seconds since today's midnight, as they have really passed: where the clocks were changed
/// meanwhile, this is not what they show.
double secondsOfToday(const Platform& platform);

/// The time in the short form, of the current locale.
std::string timeInWords(const Platform& platform);
/// The date, in the form.
std::string dateInWords(const Platform& platform, FormatterStyle form);

/// The form of a record's date length: 0 short, 1 full.
FormatterStyle dateStyle(std::int64_t length);

} // namespace vitrelle
