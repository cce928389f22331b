#include "core/families/weather/WeatherFetcher.h"

#include "core/store/Decimal.h"
#include "core/store/Keys.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>
#include <string_view>
#include <utility>

namespace vitrelle {

namespace {

constexpr std::size_t shownHours = 8;

template <class T>
StoredValue<T> stored(const Platform& platform, const Key<T>& key) {
  return {platform, key};
}

Coordinate lastKnownPlace(const Platform& platform) {
  return {stored(platform, keys::lastKnownLat).get().value_or(0),
          stored(platform, keys::lastKnownLon).get().value_or(0)};
}

void storeTemperatureText(const Platform& platform, double celsius) {
  const bool fahrenheit =
      stored(platform, keys::storedWeatherTemperatureFormat).get().value_or(false);
  stored(platform, keys::storedWeatherTemperature).set(temperatureText(celsius, fahrenheit));
}

void storeCurrent(const Platform& platform, const CurrentTemperature& now) {
  stored(platform, keys::storedWeatherImage).set(now.symbolName);
  stored(platform, keys::storedWeatherTemperatureRaw).set(now.temperature);
  storeTemperatureText(platform, now.temperature);
  stored(platform, keys::storedCurrentWeatherDescription).set(now.condition);
  stored(platform, keys::storedPressure).set(now.pressure);
  stored(platform, keys::storedUVIndex).set(now.UVIndex);
  stored(platform, keys::storedHumidity).set(now.humidity);
  // The raw value as well, and not the words.
  stored(platform, keys::storedCurrentWeatherComplexDescription).set(now.condition);
  platform.debugConsole.print(now.condition);
  platform.widgetCenter.reloadAllTimelines();
}

std::string inWords(const std::vector<TodaysRain>& hours) {
  std::string words;
  for (const TodaysRain& rain : hours) {
    words += (words.empty() ? "" : ", ") + std::string("TodaysRain(hour: ") +
             shortestDecimal(rain.hour.secondsSinceReferenceDate) +
             ", max: " + shortestDecimal(rain.max) + ", id: \"" + rain.id + "\")";
  }
  return "[" + words + "]";
}

void storeRain(const Platform& platform, const std::vector<TodaysRain>& hours) {
  platform.debugConsole.print(inWords(hours));
  const auto json = encodeRain(hours);
  if (!json) {
    platform.debugConsole.print("Unable to Encode Data (" + json.failure().why + ")");
    return;
  }
  stored(platform, keys::currentLocationRainData).set(*json);
  platform.widgetCenter.reloadAllTimelines();
}

/// Kinds of precipitation are words, so that this is 0 for them.
double decimalNumber(std::string_view text) {
  double number = 0;
  const char* const end = text.data() + text.size();
  const auto [behind, error] = std::from_chars(text.data(), end, number);
  return error == std::errc() && behind == end ? number : 0;
}

} // namespace

double unixTime(const Date& moment) {
  constexpr double referenceDate = 978307200;
  return moment.secondsSinceReferenceDate + referenceDate;
}

std::string temperatureText(double celsius, bool fahrenheit) {
  const std::string text = shortestDecimal(fahrenheit ? celsius * 1.8 + 32.0 : celsius);
  return text.substr(0, text.find('.')) + "º";
}

WeatherFetcher::WeatherFetcher(const Platform& platform, CurrentTemperature currentTemperature,
                               std::vector<TodaysRain> hourlyRain)
    : platform_(platform),
      values_(std::make_shared<Values>(
          Values{platform, std::move(currentTemperature), std::move(hourlyRain)})),
      locationManager_(platform),
      currentUnixTime_(unixTime(platform.dateTime.now())) {}

WeatherFetcher::~WeatherFetcher() = default;

bool WeatherFetcher::isDue(const Key<double>& nextTime) const {
  return stored(platform_, nextTime).get().value_or(0) <= currentUnixTime_;
}

Coordinate WeatherFetcher::place() const {
  const auto& here = locationManager_.lastLocation();
  if (here && (here->latitude != 0 || here->longitude != 0)) {
    stored(platform_, keys::lastKnownLat).set(here->latitude);
    stored(platform_, keys::lastKnownLon).set(here->longitude);
  }
  return lastKnownPlace(platform_);
}

void WeatherFetcher::fetch(Subscription& asked, const Done& done, Completion completion) {
  if (platform_.device.environment("XCODE_RUNNING_FOR_PREVIEWS") == "1") {
    if (done) done();
    return;
  }
  asked = platform_.weatherService.weather(
      place(), [this, done, completion = std::move(completion)](const Result<Weather>& weather) {
        if (weather) {
          completion(*weather);
          return;
        }
        platform_.debugConsole.print(weather.failure().what + ": " + weather.failure().why);
        if (done) done();
      });
}

/// The queue's own copy of the task outlives the fetcher: what the service has answered is stored
/// also where its screen is left in the same moment, for no other fetch would come for hours.
void WeatherFetcher::queue(std::function<void(Values&)> writing, const Done& done) {
  const auto task = std::make_shared<Subscription>();
  *task = platform_.mainQueue.asyncAfter(0, [this, values = values_, alive = std::weak_ptr(alive_),
                                             task, writing = std::move(writing), done] {
    writing(*values);
    if (alive.expired()) return;
    changed();
    if (done && !alive.expired()) done();
  });
}

CurrentTemperature WeatherFetcher::record(const CurrentWeather& weather) const {
  return {.symbolName = weather.symbolName,
          .temperature = weather.temperature,
          .condition = weather.condition,
          .humidity = std::abs(weather.humidity),
          .pressure = weather.pressure,
          .UVIndex = weather.uvIndex,
          .weatherDescription = weather.conditionDescription,
          .id = platform_.identifiers.newUuid()};
}

void WeatherFetcher::getCurrentWeather(const Done& done) {
  if (!isDue(keys::nextCurrentTempUpdateTime)) {
    platform_.debugConsole.print("Youre on a Current Cooldown");
    // The unit may have been changed since.
    storeTemperatureText(platform_,
                         stored(platform_, keys::storedWeatherTemperatureRaw).getOrDefault());
    if (done) done();
    return;
  }
  fetch(askedCurrent_, done, [this, done](const Weather& weather) {
    queue(
        [now = record(weather.currentWeather)](Values& values) {
          values.currentTemperature = now;
          storeCurrent(values.platform, now);
        },
        done);
    platform_.debugConsole.print("Success");
    stored(platform_, keys::nextCurrentTempUpdateTime).set(currentUnixTime_ + cooldownAmount);
  });
}

void WeatherFetcher::getRainData(const Done& done) {
  if (!isDue(keys::nextRainDataUpdateTime)) {
    platform_.debugConsole.print("Youre on a Rain Data Cooldown");
    if (done) done();
    return;
  }
  fetch(askedRain_, done, [this, done](const Weather& weather) {
    const auto& forecast = weather.hourlyForecast;
    std::vector<TodaysRain> hours;
    for (std::size_t i = 0; i < std::min(forecast.size(), shownHours); ++i) {
      hours.push_back({forecast[i].date, decimalNumber(forecast[i].precipitation),
                       platform_.identifiers.newUuid()});
    }
    queue(
        [hours = std::move(hours)](Values& values) {
          values.hourlyRain = hours;
          storeRain(values.platform, hours);
        },
        done);
    platform_.debugConsole.print("SuccessRain");
    stored(platform_, keys::nextRainDataUpdateTime).set(currentUnixTime_ + cooldownAmount);
  });
}

Subscription resolveCityName(const Platform& platform, std::function<void()> done) {
  return platform.geocoder.reverseGeocodeLocation(
      lastKnownPlace(platform),
      [&platform, done = std::move(done)](const Result<std::vector<Placemark>>& placemarks) {
        if (placemarks && !placemarks->empty())
          stored(platform, keys::storedCityName).set(placemarks->front().locality.value_or(""));
        if (done) done();
      });
}

} // namespace vitrelle
