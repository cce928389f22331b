#include "cli/Command.h"
#include "cli/OneLine.h"

#include "core/families/weather/WeatherFetcher.h"
#include "core/store/GroupStore.h"
#include "core/store/Keys.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace vitrelle::cli {

namespace {

using Json = nlohmann::ordered_json;

struct WeatherArguments {
  bool json = false;
  bool rain = false;
};

/// What is stored, by the names that the fetcher has for it; null where it never was.
Json storedWeather(const Platform& platform) {
  const GroupStore store(platform);
  Json weather;
  const auto add = [&](const char* name, const auto& key) {
    const auto value = store.value(key);
    weather[name] = value ? Json(*value) : Json();
  };
  add("weatherImage", keys::storedWeatherImage);
  add("weatherTemp", keys::storedWeatherTemperature);
  add("rawWeatherTemp", keys::storedWeatherTemperatureRaw);
  add("weatherDesc", keys::storedCurrentWeatherDescription);
  add("weatherComplexDesc", keys::storedCurrentWeatherComplexDescription);
  add("weatherHumidity", keys::storedHumidity);
  add("weatherPressure", keys::storedPressure);
  add("weatherUVIndex", keys::storedUVIndex);
  add("cityName", keys::storedCityName);
  add("lastLat", keys::lastKnownLat);
  add("lastLon", keys::lastKnownLon);
  add("nextTempUpdateTime", keys::nextCurrentTempUpdateTime);
  add("nextRainUpdateTime", keys::nextRainDataUpdateTime);
  const auto rain = store.value(keys::currentLocationRainData);
  const auto hours = rain ? decodeRain(*rain) : std::nullopt;
  weather["hourlyRain"] = hours ? Json::array() : Json();
  for (const TodaysRain& hour : hours.value_or(std::vector<TodaysRain>())) {
    weather["hourlyRain"].push_back(
        {{"hour", hour.hour.secondsSinceReferenceDate}, {"max", hour.max}});
  }
  return weather;
}

Exit print(const Platform& platform, bool json) {
  if (const Status readable = GroupStore(platform).check(Suite::group); !readable) {
    complain(readable.failure());
    return Exit::failed;
  }
  const Json weather = storedWeather(platform);
  if (json) {
    std::cout << weather.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
    return Exit::done;
  }
  for (const auto& [name, value] : weather.items()) {
    if (value.is_null()) continue;
    const std::string words = value.is_string()
                                  ? quotedLine(value.get<std::string>())
                                  : value.dump(-1, ' ', false, Json::error_handler_t::replace);
    std::cout << name << " = " << words << '\n';
  }
  return Exit::done;
}

/// The platform, with an eye on what the fetcher swallows.
struct Watched {
  explicit Watched(const Platform& whole) : platform(whole) {
    platform.weatherService.weather = [this, ask = whole.weatherService.weather](
                                          const Coordinate& place, const auto& completion) {
      asked = true;
      return ask(place, [this, completion](const Result<Weather>& weather) {
        if (!weather) failure = weather.failure();
        completion(weather);
      });
    };
    platform.defaults.set = [this, set = whole.defaults.set](Suite suite, const std::string& key,
                                                             const StoreValue& value) {
      Status stored = set(suite, key, value);
      if (!stored) failure = stored.failure();
      return stored;
    };
  }

  Platform platform;
  bool asked = false;
  std::optional<Failure> failure;
};

/// Runs the program's loop until the work says that it is done; whether it did.
bool waitFor(const CommandContext& context,
             const std::function<void(std::function<void()> done)>& work) {
  bool done = false;
  bool waits = false;
  work([&] {
    done = true;
    if (waits) context.endLoop();
  });
  waits = true;
  if (!done) context.runLoop();
  return done;
}

/// For which what is stored holds; nothing where it has to be fetched.
double secondsLeft(const Platform& platform, bool rain) {
  const auto& key = rain ? keys::nextRainDataUpdateTime : keys::nextCurrentTempUpdateTime;
  const double now = unixTime(platform.dateTime.now());
  return std::max(GroupStore(platform).value(key).value_or(0) - now, 0.0);
}

/// Why nothing was asked for.
void tellCooldown(double secondsLeft) {
  if (secondsLeft > 0) {
    std::fprintf(stderr, "vitrelle: what is stored holds for another %.0f minutes\n",
                 std::ceil(secondsLeft / 60));
  } else {
    std::fprintf(stderr, "vitrelle: nothing is fetched for a preview\n");
  }
}

/// Until somebody tells where the device is, if he may, for a short while: a page fetches for the
/// last known place and is there when the next fetch is due, but this program is not. Whether the
/// loop was not ended by something else.
bool waitForPosition(const CommandContext& context) {
  constexpr double patienceSeconds = 3;
  const Platform& platform = context.platform();
  if (!isAuthorized(platform.location.authorizationStatus())) return true;
  Subscription positions;
  Subscription timeout;
  return waitFor(context, [&](const std::function<void()>& finished) {
    timeout = platform.mainQueue.asyncAfter(patienceSeconds, finished);
    positions =
        platform.location.startUpdatingLocation([finished](const std::vector<Coordinate>& told) {
          if (!told.empty()) finished();
        });
  });
}

/// By the rules of the widgets. The name of the place follows, of where the weather now is.
Exit fetch(const CommandContext& context, const WeatherArguments& arguments) {
  Watched watched(context.platform());
  const double left = secondsLeft(watched.platform, arguments.rain);
  WeatherFetcher fetcher(watched.platform);
  if (left == 0 && !waitForPosition(context)) return Exit::failed;
  Subscription city;
  const bool done = waitFor(context, [&](const std::function<void()>& finished) {
    if (arguments.rain) {
      fetcher.getRainData(finished);
    } else {
      fetcher.getCurrentWeather(finished);
    }
  });
  if (watched.failure) complain(*watched.failure);
  if (!done || watched.failure) return Exit::failed;
  if (!watched.asked) {
    tellCooldown(left);
    return print(watched.platform, arguments.json);
  }
  const bool named = waitFor(context, [&](std::function<void()> finished) {
    city = resolveCityName(watched.platform, std::move(finished));
  });
  return named ? print(watched.platform, arguments.json) : Exit::failed;
}

} // namespace

void addWeatherCommand(CLI::App& program, CommandContext& context) {
  const auto told = std::make_shared<WeatherArguments>();
  CLI::App* command =
      program.add_subcommand("weather", "Print the weather that is stored, or fetch it");
  command->add_flag("--json", told->json, "Print it as JSON");
  CLI::App* fetching = command->add_subcommand(
      "fetch", "Fetch the weather of where the device is, unless that was done lately");
  fetching->add_flag("--rain", told->rain, "The rain of the next hours instead");
  fetching->add_flag("--json", told->json, "Print what is stored then as JSON");
  command->callback([told, fetching, &context] {
    if (!*fetching) {
      context.exit = print(context.platform(), told->json);
    } else if (context.handOver) {
      context.handOver();
      context.exit = Exit::failed;
    } else {
      context.exit = fetch(context, *told);
    }
  });
}

} // namespace vitrelle::cli
