#include "cli/Numbers.h"

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
