// The present moment, and moments as clocks on the wall show them. The time zone is the C
// library's, TZ or else the system's, looked up at each call.
#pragma once

#include "core/platform/DateTime.h"

#include <optional>

namespace vitrelle::host {

/// How far clocks on the wall are ahead of UTC at a moment.
double secondsFromUtc(const Date& moment);

/// The first moment at which clocks on the wall show this time, told as if it were one in UTC.
/// Where they leave it out, the moment at which they do.
Date firstMomentAt(const Date& wallTime);

/// Without words for a date. A told moment stays the present one.
DateTime makeClock(std::optional<Date> told);

} // namespace vitrelle::host
