#include "host/weather/Forecast.h"

#include "host/weather/SymbolCodes.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cmath>
#include <initializer_list>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vitrelle::host {

namespace {

using Json = nlohmann::json;

/// More than any forecast has.
constexpr int deepestNesting = 32;

/// The last steps of a forecast are six hours apart.
constexpr double longestStepSeconds = 6 * 3600;
/// By which a forecast may begin too late: the clocks of two machines differ.
constexpr double latestBeginningSeconds = 3600;

Failure failure(const std::string& why) {
  return {"the forecast", why};
}

/// Null where one of the keys has nothing.
const Json* at(const Json* value, std::initializer_list<const char*> keys) {
  for (const char* key : keys) {
    if (value == nullptr || !value->is_object()) return nullptr;
    const auto found = value->find(key);
    value = found == value->end() ? nullptr : &*found;
  }
  return value;
}

std::optional<std::string_view> textAt(const Json* value, std::initializer_list<const char*> keys) {
  const Json* found = at(value, keys);
  if (found == nullptr || !found->is_string()) return std::nullopt;
  return found->get_ref<const std::string&>();
}

/// "2026-11-21T13:00:00Z", the only form that the service writes.
std::optional<Date> dateOf(std::string_view text) {
  constexpr std::string_view form = "0000-00-00T00:00:00Z";
  if (text.size() != form.size()) return std::nullopt;
  std::vector<unsigned> numbers;
  for (std::size_t i = 0; i < form.size(); ++i) {
    const bool isDigit = text[i] >= '0' && text[i] <= '9';
    if (form[i] == '0' ? !isDigit : text[i] != form[i]) return std::nullopt;
    if (form[i] != '0') continue;
    if (i == 0 || form[i - 1] != '0') numbers.push_back(0);
    numbers.back() = numbers.back() * 10 + static_cast<unsigned>(text[i] - '0');
  }
  using namespace std::chrono;
  const year_month_day day{year(static_cast<int>(numbers[0])), month(numbers[1]),
                           std::chrono::day(numbers[2])};
  if (!day.ok() || numbers[3] > 23 || numbers[4] > 59 || numbers[5] > 59) return std::nullopt;
  const auto since = sys_days(day) - sys_days(year(2001) / 1 / 1) + hours(numbers[3]) +
                     minutes(numbers[4]) + seconds(numbers[5]);
  return Date{static_cast<double>(duration_cast<seconds>(since).count())};
}

/// A value of a step, and between what it lies in any weather.
struct Quantity {
  const char* name;
  double least;
  double most;
};
constexpr Quantity temperature{"air_temperature", -150, 100};
constexpr Quantity humidity{"relative_humidity", 0, 150};
constexpr Quantity pressure{"air_pressure_at_sea_level", 500, 1500};
constexpr Quantity uvIndex{"ultraviolet_index_clear_sky", 0, 100};

struct Step {
  Date date;
  const Json* data;
};

Result<double> valueOf(const Step& step, const Quantity& quantity) {
  const Json* value = at(step.data, {"instant", "details", quantity.name});
  const bool isNumber = value != nullptr && value->is_number();
  const double number = isNumber ? value->get<double>() : quantity.least;
  if (!isNumber || !(number >= quantity.least && number <= quantity.most))
    return failure("it has no possible " + std::string(quantity.name));
  return number;
}

std::optional<Sky> skyIn(const Step& step, const char* period) {
  const auto code = textAt(step.data, {period, "summary", "symbol_code"});
  return code ? skyOf(*code) : std::nullopt;
}

/// Of the shortest period that has one.
std::optional<Sky> skyOf(const Step& step) {
  for (const char* period : {"next_1_hours", "next_6_hours", "next_12_hours"}) {
    if (const auto sky = skyIn(step, period)) return sky;
  }
  return std::nullopt;
}

/// Those that have a time, in its order.
std::vector<Step> stepsOf(const Json& document) {
  const Json* list = at(&document, {"properties", "timeseries"});
  if (list == nullptr || !list->is_array()) return {};
  std::vector<Step> steps;
  for (const Json& entry : *list) {
    const auto time = textAt(&entry, {"time"});
    const auto date = time ? dateOf(*time) : std::nullopt;
    const Json* data = at(&entry, {"data"});
    if (date && data != nullptr) steps.push_back({*date, data});
  }
  std::ranges::stable_sort(steps, {},
                           [](const Step& s) { return s.date.secondsSinceReferenceDate; });
  return steps;
}

/// From the step in which the moment lies; none where it lies in none.
std::span<const Step> stepsFrom(const std::vector<Step>& steps, const Date& moment) {
  const double now = moment.secondsSinceReferenceDate;
  const auto later = std::ranges::find_if(
      steps, [&](const Step& step) { return step.date.secondsSinceReferenceDate > now; });
  const auto present = later == steps.begin() ? later : std::prev(later);
  if (present == steps.end()) return {};
  const double age = now - present->date.secondsSinceReferenceDate;
  if (!(age < longestStepSeconds && age >= -latestBeginningSeconds)) return {};
  return {present, steps.end()};
}

Result<CurrentWeather> currentWeather(const Step& step) {
  CurrentWeather weather;
  const auto sky = skyOf(step);
  if (!sky) return failure("it has no symbol code that is known");
  weather.symbolName = sky->symbolName;
  weather.condition = sky->condition;
  weather.conditionDescription = sky->conditionDescription;

  struct Target {
    Quantity quantity;
    double* value;
  };
  double percent = 0;
  for (const auto& [quantity, value] :
       {Target{temperature, &weather.temperature}, Target{humidity, &percent},
        Target{pressure, &weather.pressure}}) {
    const Result<double> read = valueOf(step, quantity);
    if (!read) return read.failure();
    *value = *read;
  }
  weather.humidity = percent / 100;
  if (at(step.data, {"instant", "details", uvIndex.name}) != nullptr) { // only days ahead lack it
    const Result<double> uv = valueOf(step, uvIndex);
    if (!uv) return uv.failure();
    weather.uvIndex = std::llround(*uv);
  }
  return weather;
}

} // namespace

Result<Weather> readForecast(std::span<const std::uint8_t> reply, const Date& moment) {
  const Json document = Json::parse(
      reply.begin(), reply.end(),
      [](int depth, Json::parse_event_t, const Json&) { return depth <= deepestNesting; },
      /*allow_exceptions=*/false);
  if (document.is_discarded()) return failure("it is no JSON document");
  const std::vector<Step> all = stepsOf(document);
  const std::span<const Step> steps = stepsFrom(all, moment);
  if (steps.empty()) return failure("it does not tell of the present");
  Result<CurrentWeather> current = currentWeather(steps.front());
  if (!current) return current.failure();
  Weather weather{.currentWeather = *std::move(current)};
  for (const Step& step : steps) {
    if (const auto sky = skyIn(step, "next_1_hours"))
      weather.hourlyForecast.push_back({step.date, std::string(sky->precipitation)});
  }
  return weather;
}

} // namespace vitrelle::host
