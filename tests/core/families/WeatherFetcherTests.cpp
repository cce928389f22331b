#include "core/families/weather/WeatherFetcher.h"

#include "tests/core/families/WeatherTest.h"

#include <limits>
#include <memory>

namespace vitrelle {
namespace {

class WeatherFetcherTest : public test::WeatherTest {};

const Failure noAnswer{"weather", "the service does not answer"};

TEST(TemperatureTextTest, isCutTowardsZero) {
  struct Case {
    double celsius;
    bool fahrenheit;
    const char* text;
  };
  for (const Case& c : {Case{21.7, false, "21º"}, Case{21.9, false, "21º"},
                        Case{-0.5, false, "-0º"}, Case{-3, false, "-3º"}, Case{20, true, "68º"},
                        Case{-40, true, "-40º"}, Case{0, false, "0º"}})
    EXPECT_EQ(temperatureText(c.celsius, c.fahrenheit), c.text) << c.celsius;
}

TEST_F(WeatherFetcherTest, answer_isStoredInOrderAndTheWidgetsReload) {
  WeatherFetcher fetcher(platform);
  EXPECT_EQ(fetcher.currentTemperature().symbolName, "sun");
  EXPECT_EQ(fetcher.currentTemperature().temperature, 2.0);
  location.move({{1, 1}, {2, 2}, {59.91, 10.75}});
  location.move({});
  bool done = false;
  fetcher.getCurrentWeather([&] { done = true; });
  EXPECT_EQ(weather.asked.questions(), std::vector<Coordinate>({{59.91, 10.75}}));
  EXPECT_EQ(stored(keys::lastKnownLat), 59.91);
  EXPECT_EQ(stored(keys::lastKnownLon), 10.75);

  console.lines.clear();
  std::vector<std::string> order;
  const auto watched = platform.defaults.watchKeys(
      Suite::group, [&](const std::string& key) { order.push_back(key); });
  weather.asked.answer(test::warmWeather());
  EXPECT_EQ(order, std::vector<std::string>{"nextCurrentTempUpdateTime"}) << "the rest is queued";
  EXPECT_EQ(console.lines, std::vector<std::string>{"Success"});
  EXPECT_FALSE(done);
  surroundings.pass(0);
  EXPECT_TRUE(done);
  EXPECT_EQ(order,
            std::vector<std::string>(
                {"nextCurrentTempUpdateTime", "storedWeatherImage", "storedWeatherTemperatureRaw",
                 "storedWeatherTemperature", "storedCurrentWeatherDescription", "storedPressure",
                 "storedUVIndex", "storedHumidity", "storedCurrentWeatherComplexDescription"}));
  EXPECT_EQ(console.lines, std::vector<std::string>({"Success", "partlyCloudy"}));
  EXPECT_EQ(console.reloads, 1);
  EXPECT_EQ(stored(keys::storedWeatherTemperature), "21º");
  EXPECT_EQ(stored(keys::storedHumidity), 0.4);
  EXPECT_EQ(stored(keys::storedCurrentWeatherComplexDescription), "partlyCloudy")
      << "the raw value, not the words";
  EXPECT_EQ(stored(keys::nextCurrentTempUpdateTime), unixTime() + 10800);
  EXPECT_EQ(fetcher.currentTemperature().weatherDescription, "Partly Cloudy");
}

TEST_F(WeatherFetcherTest, cooldown_holdsByTheClockOfTheFetchersMaking) {
  store(keys::nextCurrentTempUpdateTime, unixTime());
  WeatherFetcher first(platform);
  time.now.secondsSinceReferenceDate += 1000;
  first.getCurrentWeather();
  ASSERT_TRUE(answer(test::warmWeather())) << "due at the very moment";
  EXPECT_EQ(stored(keys::nextCurrentTempUpdateTime), unixTime() - 1000 + 10800);

  first.getCurrentWeather();
  EXPECT_TRUE(weather.asked.questions().empty());
  EXPECT_EQ(console.lines.back(), "Youre on a Current Cooldown");
  store(keys::storedWeatherTemperatureFormat, true);
  console.reloads = 0;
  WeatherFetcher second(platform);
  bool done = false;
  second.getCurrentWeather([&] { done = true; });
  EXPECT_TRUE(done);
  EXPECT_EQ(stored(keys::storedWeatherTemperature), "71º") << "in the unit of now";
  EXPECT_EQ(console.reloads, 0);

  time.now.secondsSinceReferenceDate += 9800;
  WeatherFetcher third(platform);
  third.getCurrentWeather();
  EXPECT_EQ(weather.asked.questions().size(), 1U) << "three hours are over";
}

TEST_F(WeatherFetcherTest, place_isTheLastUsableOne) {
  WeatherFetcher fetcher(platform);
  fetcher.getCurrentWeather();
  location.move({{0, 0}});
  fetcher.getRainData();
  EXPECT_EQ(weather.asked.questions(), std::vector<Coordinate>({{0, 0}, {0, 0}}));
  EXPECT_FALSE(stored(keys::lastKnownLat)) << "nowhere is not stored";
  location.move({{0, 5}});
  fetcher.getCurrentWeather();
  EXPECT_EQ(stored(keys::lastKnownLat), 0);
  EXPECT_EQ(stored(keys::lastKnownLon), 5);
  EXPECT_EQ(weather.asked.questions().back(), (Coordinate{0, 5}));
}

TEST_F(WeatherFetcherTest, failure_leavesEverythingAsItWas) {
  WeatherFetcher fetcher(platform);
  int done = 0;
  fetcher.getCurrentWeather([&] { ++done; });
  fetcher.getRainData([&] { ++done; });
  answer(noAnswer);
  answer(noAnswer);
  EXPECT_EQ(done, 2);
  EXPECT_EQ(console.lines.back(), "weather: the service does not answer");
  EXPECT_TRUE(defaults.values(Suite::group).empty());
  EXPECT_EQ(console.reloads, 0);
  fetcher.getCurrentWeather();
  EXPECT_EQ(weather.asked.questions().size(), 1U) << "the next call tries again";
}

TEST_F(WeatherFetcherTest, rain_isOfTheFirstEightHoursAndNoAmount) {
  Weather answered = test::warmWeather();
  const char* const kinds[] = {"rain", "snow", "2.5", "none", "1", "", "3x", "rain", "9", "9"};
  for (int i = 0; i < 10; ++i)
    answered.hourlyForecast.push_back({{i * 3600.0}, kinds[i]});
  WeatherFetcher fetcher(platform);
  fetcher.getRainData();
  ASSERT_TRUE(answer(answered));
  const auto hours = decodeRain(*stored(keys::currentLocationRainData));
  ASSERT_TRUE(hours);
  ASSERT_EQ(hours->size(), 8U);
  EXPECT_EQ(*hours, fetcher.hourlyRain());
  EXPECT_EQ((*hours)[0].max, 0) << "a kind is no number";
  EXPECT_EQ((*hours)[2].max, 2.5);
  EXPECT_EQ((*hours)[6].max, 0);
  EXPECT_EQ((*hours)[7].hour, (Date{7 * 3600.0}));
  EXPECT_EQ(stored(keys::nextRainDataUpdateTime), unixTime() + 10800);
  EXPECT_FALSE(stored(keys::nextCurrentTempUpdateTime)) << "the two are apart";
  EXPECT_EQ(console.reloads, 1);

  fetcher.getRainData();
  EXPECT_EQ(console.lines.back(), "Youre on a Rain Data Cooldown");
  EXPECT_TRUE(weather.asked.questions().empty());
}

TEST_F(WeatherFetcherTest, rainThatHasNoForm_leavesTheOldData) {
  store(keys::currentLocationRainData, Data{'[', ']'});
  Weather answered = test::warmWeather();
  answered.hourlyForecast = {{{0}, "inf"}};
  WeatherFetcher fetcher(platform);
  fetcher.getRainData();
  ASSERT_TRUE(answer(answered));
  EXPECT_EQ(console.lines.back(), "Unable to Encode Data (a number that is not finite)");
  EXPECT_EQ(stored(keys::currentLocationRainData), (Data{'[', ']'}));
  EXPECT_EQ(console.reloads, 0);
}

TEST_F(WeatherFetcherTest, fetcherThatIsGone_isNotCalledButWhatCameIsStored) {
  bool done = false;
  auto fetcher = std::make_unique<WeatherFetcher>(platform);
  fetcher->getCurrentWeather([&] { done = true; });
  weather.asked.answer(test::warmWeather());
  fetcher.reset();
  surroundings.pass(0);
  EXPECT_FALSE(done);
  EXPECT_EQ(stored(keys::storedWeatherImage), "cloud.sun");

  fetcher = std::make_unique<WeatherFetcher>(platform);
  fetcher->getRainData([&] { done = true; });
  fetcher.reset();
  EXPECT_TRUE(weather.asked.questions().empty()) << "nobody waits for it any more";
}

TEST_F(WeatherFetcherTest, preview_fetchesNothing) {
  phone.environment["XCODE_RUNNING_FOR_PREVIEWS"] = "1";
  WeatherFetcher fetcher(platform);
  fetcher.getCurrentWeather();
  fetcher.getRainData();
  EXPECT_TRUE(weather.asked.questions().empty());
}

TEST_F(WeatherFetcherTest, cityName_isOfThePlaceBefore) {
  store(keys::storedCityName, std::string("Bergen"));
  store(keys::lastKnownLat, 59.91);
  auto asked = resolveCityName(platform);
  EXPECT_EQ(geocoder.asked.questions(), std::vector<Coordinate>({{59.91, 0}}));
  geocoder.asked.answer(Failure{"places", "there are none"});
  EXPECT_EQ(stored(keys::storedCityName), "Bergen");
  asked = resolveCityName(platform);
  geocoder.asked.answer(std::vector<Placemark>());
  EXPECT_EQ(stored(keys::storedCityName), "Bergen");
  asked = resolveCityName(platform);
  geocoder.asked.answer(std::vector<Placemark>{{"Oslo"}, {"Moss"}});
  EXPECT_EQ(stored(keys::storedCityName), "Oslo");
  asked = resolveCityName(platform);
  geocoder.asked.answer(std::vector<Placemark>{{}});
  EXPECT_EQ(stored(keys::storedCityName), "") << "a place without a town has none";
}

} // namespace
} // namespace vitrelle
