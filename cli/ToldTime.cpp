#include "cli/ToldTime.h"

#include <algorithm>
#include <chrono>
#include <string_view>

namespace vitrelle::cli {

namespace {

/// Takes off the beginning of the text, where it looks like the pattern: each "0" stands for a
/// digit, anything else for itself.
std::optional<std::string_view> take(std::string_view& text, std::string_view pattern) {
  const std::string_view taken = text.substr(0, pattern.size());
  const bool fits = std::ranges::equal(taken, pattern, [](char c, char wanted) {
    return wanted == '0' ? c >= '0' && c <= '9' : c == wanted;
  });
  if (!fits) return std::nullopt;
  text.remove_prefix(taken.size());
  return taken;
}

int number(std::string_view digits) {
  int value = 0;
  for (const char c : digits)
    value = 10 * value + (c - '0');
  return value;
}

/// In seconds, up to so many hours; "12:30".
std::optional<int> takeClock(std::string_view& text, int hours) {
  const auto clock = take(text, "00:00");
  if (!clock) return std::nullopt;
  const int hour = number(clock->substr(0, 2));
  const int minute = number(clock->substr(3));
  if (hour > hours || minute > 59) return std::nullopt;
  return 3600 * hour + 60 * minute;
}

} // namespace

std::optional<ToldTime> parseTime(const std::string& text) {
  using namespace std::chrono;
  std::string_view left = text;
  const auto date = take(left, "0000-00-00T");
  if (!date) return std::nullopt;
  const year_month_day day{year(number(date->substr(0, 4))),
                           month(static_cast<unsigned>(number(date->substr(5, 2)))),
                           std::chrono::day(static_cast<unsigned>(number(date->substr(8, 2))))};
  const auto minutes = takeClock(left, 23);
  if (!day.ok() || !minutes) return std::nullopt;
  const auto second = take(left, ":00");
  const int seconds = *minutes + (second ? number(second->substr(1)) : 0);
  if (seconds - *minutes > 59) return std::nullopt;

  constexpr sys_days reference = 2001y / January / 1;
  const double time = duration<double>(sys_days(day) - reference).count() + seconds;
  if (left.empty()) return ToldTime{{time}, true};
  if (take(left, "Z")) return left.empty() ? std::optional(ToldTime{{time}}) : std::nullopt;
  const bool ahead = take(left, "+").has_value();
  if (!ahead && !take(left, "-")) return std::nullopt;
  const auto offset = takeClock(left, 14); // no zone is farther from UTC
  if (!offset || !left.empty()) return std::nullopt;
  return ToldTime{{ahead ? time - *offset : time + *offset}};
}

} // namespace vitrelle::cli
