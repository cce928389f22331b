// The weather, as the Norwegian Meteorological Institute forecasts it.
#pragma once

#include "core/platform/WeatherService.h"
#include "host/Host.h"

#include <chrono>
#include <functional>
#include <string>

namespace vitrelle::host {

inline constexpr const char* forecastUrl =
    "https://api.met.no/weatherapi/locationforecast/2.0/complete";
inline constexpr const char* forecastTermsUrl = "https://api.met.no/doc/License";

/// Where the weather comes from.
struct WeatherSources {
  std::string url = forecastUrl;
  HomeFolder home; ///< where replies are kept
  std::function<Date()> now;
  /// With one request, from the look-up of the name to the last byte.
  std::chrono::milliseconds patience = std::chrono::seconds(10);
  /// For which a service that failed is not asked.
  std::chrono::milliseconds restAfterFailure = std::chrono::minutes(1);
  std::function<void(const std::string& url)> openUrl;
};

/// Asks, reads and parses in a thread of its own, from the first question on. Needs a
/// QCoreApplication for as long as it is used, but no loop of Qt's.
WeatherService makeWeatherService(WeatherSources sources, const EventLoop& loop);

/// Puts it into a platform.
void useWeatherService(Platform& platform, const HostOptions& options, const EventLoop& loop);

} // namespace vitrelle::host
