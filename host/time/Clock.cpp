#include "host/time/Clock.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <ctime>
#include <string>

namespace vitrelle::host {

namespace {

constexpr double referenceDate = 978307200; // in seconds since 1970
constexpr double day = 86400;

Date present() {
  const auto time = std::chrono::system_clock::now().time_since_epoch();
  return {std::chrono::duration<double>(time).count() - referenceDate};
}

double wallSeconds(double moment) {
  return moment + secondsFromUtc({moment});
}

Date startOfDay(const Date& moment) {
  return firstMomentAt({std::floor(wallSeconds(moment.secondsSinceReferenceDate) / day) * day});
}

} // namespace

double secondsFromUtc(const Date& moment) {
  constexpr double endOfCalendars = 1e12; // the C library counts years in 32 bits
  const double seconds = std::floor(moment.secondsSinceReferenceDate + referenceDate);
  if (!(std::abs(seconds) < endOfCalendars)) return 0;
  const auto time = static_cast<std::time_t>(seconds);
  std::tm local{};
  tzset();
  return localtime_r(&time, &local) == nullptr ? 0 : static_cast<double>(local.tm_gmtoff);
}

Date firstMomentAt(const Date& wallTime) {
  // The clocks are changed at most once from a day before to a day after.
  const double wall = wallTime.secondsSinceReferenceDate;
  const double before = secondsFromUtc({wall - day});
  const double after = secondsFromUtc({wall + day});
  double first = wall - std::max(before, after);
  double last = wall - std::min(before, after);
  if (wallSeconds(first) >= wall) return {first}; // also of two that show the same
  // The change lies between, and from here on clocks only go forward.
  while (last - first > 1) {
    const double middle = std::floor((first + last) / 2);
    (wallSeconds(middle) < wall ? first : last) = middle;
  }
  return {last};
}

DateTime makeClock(std::optional<Date> told) {
  return {.now = [told] { return told ? *told : present(); },
          .startOfDay = startOfDay,
          .text = [](const Date&, FormatterStyle, FormatterStyle) { return std::string(); }};
}

} // namespace vitrelle::host
