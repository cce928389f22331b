// The world that the Weather family needs, in memory.
#pragma once

#include "core/families/weather/WeatherFetcher.h"
#include "tests/core/lifecycle/LifecycleTest.h"

#include <optional>
#include <string>

namespace vitrelle::test {

/// What is known of a warm and cloudy hour.
inline Weather warmWeather() {
  return {.currentWeather = {.symbolName = "cloud.sun",
                             .temperature = 21.7,
                             .condition = "partlyCloudy",
                             .conditionDescription = "Partly Cloudy",
                             .humidity = -0.4,
                             .pressure = 1013.25,
                             .uvIndex = 6}};
}

class WeatherTest : public LifecycleTest {
 protected:
  template <class T>
  std::optional<T> stored(const Key<T>& key) const {
    return GroupStore(platform).value(key);
  }
  template <class T>
  void store(const Key<T>& key, const T& value) {
    GroupStore(platform).set(key, value);
  }
  double unixTime() const { return time.now.secondsSinceReferenceDate + 978307200; }
  /// Answers the oldest question, and lets the main queue run.
  bool answer(const Result<Weather>& result) {
    const bool asked = weather.asked.answer(result);
    surroundings.pass(0);
    return asked;
  }
};

} // namespace vitrelle::test
