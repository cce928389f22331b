#include "cli/Numbers.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <optional>
#include <string>

namespace vitrelle::cli {

std::optional<std::int64_t> wholeNumber(const std::string& text) {
  std::int64_t number = 0;
  const char* const end = text.data() + text.size();
  const auto [behind, error] = std::from_chars(text.data(), end, number);
  // Written otherwise than it is told, such as "01" or "-0", it may be meant otherwise.
  if (error != std::errc() || behind != end || std::to_string(number) != text) return std::nullopt;
  return number;
}

std::optional<double> decimalNumber(const std::string& text) {
  const std::size_t point = text.find('.');
  const std::string whole = text.substr(0, point);
  const bool isNegative = whole.starts_with('-');
  const std::string positive = whole.substr(isNegative ? 1 : 0);
  const auto units = wholeNumber(positive);
  if (!units || *units < 0 || (isNegative && *units == 0)) return std::nullopt;
  if (point != std::string::npos) {
    const std::string decimals = text.substr(point + 1);
    const bool areDigits =
        std::ranges::all_of(decimals, [](char c) { return c >= '0' && c <= '9'; });
    if (decimals.empty() || !areDigits) return std::nullopt;
  }
  double number = 0;
  std::from_chars(text.data(), text.data() + text.size(), number);
  return number;
}

CLI::Validator wholeNumber(std::int64_t lowest, std::int64_t highest) {
  const bool open = highest == std::numeric_limits<std::int64_t>::max();
  const std::string range = open ? std::to_string(lowest) + " or above"
                                 : std::to_string(lowest) + " to " + std::to_string(highest);
  return {[lowest, highest, range](const std::string& text) -> std::string {
            const auto number = wholeNumber(text);
            if (number && *number >= lowest && *number <= highest) return "";
            return "'" + text + "' is no whole number from " + range;
          },
          ""};
}

CLI::Validator styleNumber() {
  return {[](const std::string& text) -> std::string {
            if (const auto number = wholeNumber(text); number && *number >= 0) return "";
            return "'" + text + "' is no style's number, which is 0 or above";
          },
          ""};
}

} // namespace vitrelle::cli
