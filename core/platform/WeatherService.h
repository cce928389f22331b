// The weather at a place, now and in the hours to come.
#pragma once

#include "core/platform/Defaults.h"
#include "core/platform/Location.h"
#include "core/platform/Result.h"
#include "core/platform/Subscription.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace vitrelle {

struct CurrentWeather {
  std::string symbolName = {};           ///< without ".fill": "cloud.sun.rain"
  double temperature = 0;                ///< degrees Celsius
  std::string condition = {};            ///< the platform's raw value: "mostlyClear"
  std::string conditionDescription = {}; ///< in words: "Mostly Clear"
  double humidity = 0;                   ///< of 1
  double pressure = 0;                   ///< hectopascals, at sea level
  std::int64_t uvIndex = 0;
  bool operator==(const CurrentWeather&) const = default;
};

struct HourWeather {
  Date date = {};                 ///< the hour's beginning
  std::string precipitation = {}; ///< its kind, as the platform spells it: "none", "rain"
  bool operator==(const HourWeather&) const = default;
};

struct Weather {
  CurrentWeather currentWeather = {};
  std::vector<HourWeather> hourlyForecast = {}; ///< ascending
  bool operator==(const Weather&) const = default;
};

struct WeatherService {
  /// Answers on the main thread, after it has returned; never once the subscription has ended.
  std::function<Subscription(const Coordinate&,
                             std::function<void(const Result<Weather>&)> completion)>
      weather;
  /// Opens the page that tells whose data it is.
  std::function<void()> openAttribution;
};

} // namespace vitrelle
