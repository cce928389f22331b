#include "core/app/Shortcuts.h"

#include "core/platform/FatalError.h"
#include "core/store/Keys.h"
#include "core/store/Listing.h"
#include "core/store/StoredValue.h"

#include <charconv>
#include <limits>

namespace vitrelle {

namespace {

constexpr std::string_view prefix = "Style ";

/// 0 for what is no whole number, or none of 64 bits with another below it.
std::int64_t wholeNumber(std::string_view text) {
  if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
  std::int64_t number = 0;
  const char* const end = text.data() + text.size();
  const auto [behind, error] = std::from_chars(text.data(), end, number);
  const bool isNumber = error == std::errc() && behind == end;
  return isNumber && number != std::numeric_limits<std::int64_t>::min() ? number : 0;
}

} // namespace

std::vector<std::string> ViewStringOptionsProvider::results() const {
  const auto amount = StoredValue<std::int64_t>(platform_, keys::amountOfConfigs).get();
  if (!amount || *amount < 1) fatalError("there is no style to choose from");
  std::vector<std::string> names;
  for (std::int64_t number = 1; number <= listed(*amount); ++number)
    names.push_back(std::string(prefix) + std::to_string(number));
  return names;
}

std::variant<ChangeVitrelleConfigIntent::NeedsValue, ChangeVitrelleConfigIntent::Done>
ChangeVitrelleConfigIntent::perform(const std::optional<std::string>& style) const {
  if (!style) return NeedsValue{};
  std::string rest = *style;
  for (auto at = rest.find(prefix); at != std::string::npos; at = rest.find(prefix, at))
    rest.erase(at, prefix.size());
  StoredValue<std::int64_t>(platform_, keys::selectedConfig).set(wholeNumber(rest) - 1);
  platform_.widgetCenter.reloadAllTimelines();
  return Done{};
}

} // namespace vitrelle
