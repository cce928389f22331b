// Replies of our own in the shape of the weather service's.
#pragma once

#include "core/platform/Defaults.h"

#include <nlohmann/json.hpp>

#include <initializer_list>
#include <string>

namespace vitrelle::test {

/// 2026-11-21 13:00 UTC, when the served forecast begins.
inline constexpr Date firstHour{816958800};

inline nlohmann::json symbol(const std::string& code) {
  return {{"summary", {{"symbol_code", code}}}, {"details", {{"precipitation_amount", 0.4}}}};
}

/// A step with values for the hour and for twelve, as those of the next days have.
inline nlohmann::json step(const std::string& time, const std::string& code) {
  const nlohmann::json details = {{"air_pressure_at_sea_level", 1013.2},
                                  {"air_temperature", -3.4},
                                  {"relative_humidity", 87.5},
                                  {"ultraviolet_index_clear_sky", 1.6},
                                  {"wind_speed", 2.1}};
  return {{"time", time},
          {"data",
           {{"instant", {{"details", details}}},
            {"next_12_hours", {{"summary", {{"symbol_code", "cloudy"}}}}},
            {"next_1_hours", symbol(code)},
            {"next_6_hours", symbol("fog")}}}};
}

inline nlohmann::json forecast(const nlohmann::json::array_t& steps) {
  return {{"type", "Feature"},
          {"geometry", {{"type", "Point"}, {"coordinates", {10.75, 59.91, 5}}}},
          {"properties",
           {{"meta",
             {{"updated_at", "2026-11-21T12:41:33Z"}, {"units", {{"air_temperature", "celsius"}}}}},
            {"timeseries", steps}}}};
}

/// Four steps an hour apart, then two six hours apart that have no hour's values.
inline nlohmann::json servedForecast() {
  nlohmann::json::array_t steps = {step("2026-11-21T13:00:00Z", "heavyrain"),
                                   step("2026-11-21T14:00:00Z", "lightssnowshowersandthunder_day"),
                                   step("2026-11-21T15:00:00Z", "fair_night"),
                                   step("2026-11-21T16:00:00Z", "sleet"),
                                   step("2026-11-21T18:00:00Z", "rain"),
                                   step("2026-11-22T00:00:00Z", "rain")};
  for (const std::size_t i : {4U, 5U})
    steps[i]["data"].erase("next_1_hours");
  return forecast(steps);
}

} // namespace vitrelle::test
