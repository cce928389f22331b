#include "core/store/TodaysRain.h"

#include <nlohmann/json.hpp>

#include <cmath>

namespace vitrelle {

namespace {

using Json = nlohmann::ordered_json;

/// More than any forecast has. A store may come from anywhere.
constexpr std::size_t mostHours = 1000;

} // namespace

Result<Data> encodeRain(const std::vector<TodaysRain>& hours) {
  Json array = Json::array();
  for (const TodaysRain& rain : hours) {
    const double hour = rain.hour.secondsSinceReferenceDate;
    if (!std::isfinite(hour) || !std::isfinite(rain.max))
      return Failure{"rain", "a number that is not finite"};
    array.push_back({{"hour", hour}, {"max", rain.max}, {"id", rain.id}});
  }
  const std::string text = array.dump(-1, ' ', false, Json::error_handler_t::replace);
  return Data(text.begin(), text.end());
}

std::optional<std::vector<TodaysRain>> decodeRain(const Data& json) {
  const Json array = Json::parse(json.begin(), json.end(), nullptr, false);
  if (!array.is_array() || array.size() > mostHours) return std::nullopt;
  std::vector<TodaysRain> hours;
  for (const Json& entry : array) {
    if (!entry.is_object()) return std::nullopt;
    const auto hour = entry.find("hour");
    const auto max = entry.find("max");
    const auto id = entry.find("id");
    if (hour == entry.end() || max == entry.end() || id == entry.end() || !hour->is_number() ||
        !max->is_number() || !id->is_string())
      return std::nullopt;
    hours.push_back({{hour->get<double>()}, max->get<double>(), id->get<std::string>()});
  }
  return hours;
}

} // namespace vitrelle
