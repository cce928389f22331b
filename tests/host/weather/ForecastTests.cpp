#include "host/weather/Forecast.h"

#include "tests/host/weather/ServedForecast.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace vitrelle::host {
namespace {

using nlohmann::json;
using Pointer = json::json_pointer;

constexpr double hour = 3600;

Date after(double seconds) {
  return {test::firstHour.secondsSinceReferenceDate + seconds};
}

Result<Weather> read(const std::string& text, const Date& moment = after(60)) {
  return readForecast({reinterpret_cast<const std::uint8_t*>(text.data()), text.size()}, moment);
}

TEST(Forecast, present_isTheStepThatContainsIt) {
  const Result<Weather> weather = read(test::servedForecast().dump());
  ASSERT_TRUE(weather) << weather.failure().why;
  EXPECT_EQ(weather->currentWeather, (CurrentWeather{.symbolName = "cloud.heavyrain",
                                                     .temperature = -3.4,
                                                     .condition = "heavyRain",
                                                     .conditionDescription = "Heavy Rain",
                                                     .humidity = 0.875,
                                                     .pressure = 1013.2,
                                                     .uvIndex = 2}));
  EXPECT_EQ(weather->hourlyForecast, (std::vector<HourWeather>{{after(0), "rain"},
                                                               {after(hour), "snow"},
                                                               {after(2 * hour), "none"},
                                                               {after(3 * hour), "sleet"}}));
}

TEST(Forecast, momentAndStep_belongTogether) {
  struct Case {
    double seconds; ///< since the forecast's beginning
    const char* condition;
    std::size_t hours;
  };
  const std::string text = test::servedForecast().dump();
  for (const auto& [seconds, condition, hours] :
       {Case{-hour, "heavyRain", 4}, Case{0, "heavyRain", 4}, Case{hour - 0.5, "heavyRain", 4},
        Case{hour, "isolatedThunderstorms", 3}, Case{2 * hour, "mostlyClear", 2},
        Case{5 * hour, "foggy", 0}, Case{16.9 * hour, "foggy", 0}}) {
    const Result<Weather> weather = read(text, after(seconds));
    ASSERT_TRUE(weather) << seconds << ' ' << weather.failure().why;
    EXPECT_EQ(weather->currentWeather.condition, condition) << seconds;
    EXPECT_EQ(weather->hourlyForecast.size(), hours) << seconds;
  }
  for (const double seconds : {-hour - 1, 17 * hour, 1e300, -1e300})
    EXPECT_FALSE(read(text, after(seconds))) << seconds;
}

TEST(Forecast, unorderedSteps_areOrdered) {
  json document = test::servedForecast();
  json& steps = document["properties"]["timeseries"];
  std::swap(steps[0], steps[3]);
  EXPECT_EQ(*read(document.dump()), *read(test::servedForecast().dump()));
}

TEST(Forecast, symbol_isTheShortestPeriodsThatIsKnown) {
  json document = test::servedForecast();
  json& data = document["properties"]["timeseries"][0]["data"];
  data["next_1_hours"] = test::symbol("frogs");
  Result<Weather> weather = read(document.dump());
  ASSERT_TRUE(weather);
  EXPECT_EQ(weather->currentWeather.condition, "foggy");
  EXPECT_EQ(weather->hourlyForecast.front().date, after(hour)) << "an hour of frogs is left out";
  data["next_6_hours"] = 6;
  EXPECT_EQ(read(document.dump())->currentWeather.condition, "cloudy");
  data.erase("next_12_hours");
  EXPECT_FALSE(read(document.dump()));
}

/// Puts a value in a place of the served forecast, or takes away what is there.
struct Change {
  const char* place; ///< in the first step's data when it begins with no stroke
  std::optional<json> value;
};

std::string changed(const Change& change) {
  json document = test::servedForecast();
  const std::string place = change.place;
  const Pointer pointer(place.starts_with('/') ? place : "/properties/timeseries/0/" + place);
  if (change.value) {
    document[pointer] = *change.value;
  } else {
    document[pointer.parent_pointer()].erase(pointer.back());
  }
  return document.dump();
}

TEST(Forecast, whatMayBeMissing_isDoneWithout) {
  const char* uv = "data/instant/details/ultraviolet_index_clear_sky";
  EXPECT_EQ(read(changed({uv, {}}))->currentWeather.uvIndex, 0);
  for (const Change& change :
       {Change{"/geometry", {}}, Change{"/properties/meta", {}}, Change{uv, 0},
        Change{"data/instant/details/air_temperature", 12}, // no decimals
        Change{"/properties/timeseries/1", 7}, Change{"/properties/timeseries/2/time", "soon"},
        Change{"/properties/timeseries/2/data", {}}}) {
    const std::string text = changed(change);
    EXPECT_TRUE(read(text)) << text;
  }
}

TEST(Forecast, repliesOfAnotherShape_fail) {
  const Change changes[] = {{"/properties", {}},
                            {"/properties", json::array()},
                            {"/properties/timeseries", {}},
                            {"/properties/timeseries", json::array()},
                            {"/properties/timeseries", json::object()},
                            {"/properties/timeseries", nullptr},
                            {"data/instant", {}},
                            {"data/instant/details", "mild"},
                            {"data/instant/details/air_temperature", {}},
                            {"data/instant/details/air_temperature", nullptr},
                            {"data/instant/details/air_temperature", "NaN"},
                            {"data/instant/details/air_temperature", true},
                            {"data/instant/details/air_temperature", 1e300},
                            {"data/instant/details/air_temperature", -274},
                            {"data/instant/details/relative_humidity", {}},
                            {"data/instant/details/relative_humidity", -1},
                            {"data/instant/details/air_pressure_at_sea_level", {}},
                            {"data/instant/details/air_pressure_at_sea_level", 0},
                            {"data/instant/details/ultraviolet_index_clear_sky", "high"},
                            {"data/instant/details/ultraviolet_index_clear_sky", 1e18}};
  for (const Change& change : changes) {
    const std::string text = changed(change);
    EXPECT_FALSE(read(text)) << text;
  }
}

TEST(Forecast, times_areThoseOfTheService) {
  for (const char* time : {"", "2026-11-21", "2026-11-21T13:00:00", "2026-11-21T13:00:00+00:00",
                           "2026-11-31T13:00:00Z", "2026-13-21T13:00:00Z", "2026-11-21T24:00:00Z",
                           "2026-11-21T13:60:00Z", "2026-11-21 13:00:00Z", "2O26-11-21T13:00:00Z",
                           "-026-11-21T13:00:00Z"}) {
    json document = test::forecast({test::step(time, "rain")});
    EXPECT_FALSE(read(document.dump())) << time;
  }
  EXPECT_TRUE(read(test::forecast({test::step("2024-02-29T00:00:00Z", "rain")}).dump(),
                   Date{730857600 + 60}));
}

TEST(Forecast, bytesThatAreNoDocument_fail) {
  const std::string sound = test::servedForecast().dump();
  EXPECT_TRUE(read("\xEF\xBB\xBF" + sound)) << "a byte order mark";
  EXPECT_TRUE(read("\n " + sound + "\r\n"));
  const std::pair<const char*, std::string> cases[] = {
      {"empty", ""},
      {"blank", " \n"},
      {"no JSON", "<html>Service unavailable</html>"},
      {"a number", "1"},
      {"not finite", "NaN"},
      {"out of range", "1e999"},
      {"cut off", sound.substr(0, sound.size() - 1)},
      {"with more behind it", sound + "}"},
      {"no UTF-8", R"({"properties":")" + std::string("\xC3\x28") + "\"}"},
      {"UTF-16", std::string("\xFF\xFE{\0}\0", 6)},
      {"open brackets", std::string(4'000'000, '[')},
      {"deep arrays", std::string(2'000'000, '[') + std::string(2'000'000, ']')},
      {"large", std::string(8'000'000, ' ')}};
  for (const auto& [what, text] : cases)
    EXPECT_FALSE(read(text)) << what;
  std::string objects;
  for (int i = 0; i < 400'000; ++i)
    objects += R"({"data":)";
  EXPECT_FALSE(read(objects + "1" + std::string(400'000, '}')));
  for (std::size_t size = 0; size < sound.size(); size += 7)
    EXPECT_FALSE(read(sound.substr(0, size))) << size;
}

} // namespace
} // namespace vitrelle::host
