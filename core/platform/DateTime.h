// The present moment, the day it falls into, and both in words.
#pragma once

#include "core/platform/Defaults.h"

#include <functional>
#include <string>

namespace vitrelle {

/// How much of a date or of a time is told, as the platform numbers it.
enum class FormatterStyle { none = 0, shortForm = 1, medium = 2, longForm = 3, full = 4 };

struct DateTime {
  std::function<Date()> now;
  /// The midnight with which a moment's day began in the current time zone; the day's first moment
  /// where a change of the clocks left midnight out.
  std::function<Date(const Date&)> startOfDay;
  /// A moment as people of the current locale write it, in the current time zone. Both are looked
  /// up at each call. Without a date and a time, nothing.
  std::function<std::string(const Date&, FormatterStyle date, FormatterStyle time)> text;
};

} // namespace vitrelle
