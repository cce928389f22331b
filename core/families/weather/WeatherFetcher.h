// Gets the weather of where the device is, no more often than every three hours, and leaves it in
// the group store for the widgets and the compositions.
#pragma once

#include "core/families/weather/LocationManager.h"
#include "core/platform/Screen.h"
#include "core/store/StoredValue.h"
#include "core/store/TodaysRain.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace vitrelle {

struct CurrentTemperature {
  std::string symbolName = "sun";
  double temperature = 2.0;            ///< degrees Celsius
  std::string condition = {};          ///< raw value: "heavyRain"
  double humidity = 0;                 ///< of 1
  double pressure = 0;                 ///< hectopascals
  std::int64_t UVIndex = 0;            // NOLINT(readability-identifier-naming): its known name
  std::string weatherDescription = {}; ///< the condition in words
  std::string id = {};                 ///< of each record its own
};

/// Seconds since 1970, in which the cooldowns are stored.
double unixTime(const Date& moment);

/// A temperature as widgets show it: the number's text up to its point, so cut towards zero, and
/// "º" without a unit.
std::string temperatureText(double celsius, bool fahrenheit);

/// Whatever it asks for is forgotten when it goes away before the answer has come; an answer that
/// has come is stored all the same. The platform must outlive it, and what it has queued.
class WeatherFetcher final : public Screen {
 public:
  /// Seconds in which nothing is fetched again.
  static constexpr std::int64_t cooldownAmount = 10800;

  using Done = std::function<void()>;

  /// The moment of its making is its present for good.
  explicit WeatherFetcher(const Platform& platform, CurrentTemperature currentTemperature = {},
                          std::vector<TodaysRain> hourlyRain = {});
  ~WeatherFetcher();

  /// `done` is called once what came is stored, or there is nothing to come; it may be called
  /// before this returns, and never after the fetcher is gone.
  void getCurrentWeather(const Done& done = {});
  void getRainData(const Done& done = {});

  const CurrentTemperature& currentTemperature() const { return values_->currentTemperature; }
  const std::vector<TodaysRain>& hourlyRain() const { return values_->hourlyRain; }
  const LocationManager& locationManager() const { return locationManager_; }

 private:
  /// What is still written when the fetcher is gone.
  struct Values {
    const Platform& platform;
    CurrentTemperature currentTemperature;
    std::vector<TodaysRain> hourlyRain;
  };
  using Completion = std::function<void(const Weather&)>;

  bool isDue(const Key<double>& nextTime) const;
  Coordinate place() const;
  void fetch(Subscription& asked, const Done& done, Completion completion);
  void queue(std::function<void(Values&)> writing, const Done& done);
  CurrentTemperature record(const CurrentWeather& weather) const;

  const Platform& platform_;
  std::shared_ptr<Values> values_;
  LocationManager locationManager_;
  double currentUnixTime_;
  Subscription askedCurrent_;
  Subscription askedRain_;
  std::shared_ptr<const bool> alive_ = std::make_shared<bool>(true);
};

/// What the compositions show of a place: looks up the name of the last known position and stores
/// it, for as long as the subscription is held. `done` is called after that, whatever came of it.
Subscription resolveCityName(const Platform& platform, std::function<void()> done = {});

} // namespace vitrelle
