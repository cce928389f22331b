#include "cli/HostOptions.h"
#include "cli/Options.h"
#include "host/desktop/PollLoop.h"
#include "tests/cli/Program.h"
#include "tests/support/Environment.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace vitrelle::cli {
namespace {

TEST(Times, ofTheWallAndOfUtc_areTaken) {
  const std::pair<const char*, ToldTime> cases[] = {
      {"2026-11-21T13:30:00", {{816960600}, true}},
      {"2026-11-21T13:30", {{816960600}, true}},
      {"2026-11-21T13:30:59", {{816960659}, true}},
      {"2026-11-21T13:30Z", {{816960600}}},
      {"2026-11-21T13:30:00+05:45", {{816960600 - 20700}}},
      {"2026-11-21T13:30-03:30", {{816960600 + 12600}}},
      {"2000-12-31T23:59:59Z", {{-1}}},
      {"2024-02-29T00:00Z", {{730857600}}}};
  for (const auto& [text, time] : cases)
    EXPECT_EQ(parseTime(text), time) << text;
}

TEST(Times, otherTexts_areNone) {
  for (const char* text : {"",
                           "now",
                           "2026-11-21",
                           "2026-11-21 13:30",
                           "2026-11-21T",
                           "2026-11-21T13",
                           "13:30",
                           "2026-11-21T1:30",
                           "2026-11-21T13:30:",
                           "2026-11-21T13:30:5",
                           "2026-11-21T13:30:60",
                           "2026-11-21T24:00",
                           "2026-11-21T13:60",
                           "2026-02-29T00:00",
                           "2026-13-01T00:00",
                           "2026-00-01T00:00",
                           "2026-11-21T13:30z",
                           "2026-11-21T13:30Z ",
                           "2026-11-21T13:30ZZ",
                           "2026-11-21T13:30+0545",
                           "2026-11-21T13:30+15:00",
                           "2026-11-21T13:30+05:45Z",
                           "2026-11-21T13:30:00.5",
                           " 2026-11-21T13:30",
                           "-026-11-21T13:30"}) {
    EXPECT_FALSE(parseTime(text)) << text;
  }
}

class ToldWorldTest : public test::ProgramTest {
 protected:
  /// What a program with these words on its command line is told.
  static Options optionsOf(std::vector<std::string> words) {
    std::reverse(words.begin(), words.end()); // as the parser wants them
    CLI::App program;
    Options options;
    addOptions(program, options);
    program.parse(words);
    readEnvironment(options);
    return options;
  }
  /// What it takes for its world then.
  Platform platformOf(std::vector<std::string> words) {
    Options options = optionsOf(std::move(words));
    options.home = home();
    return hostPlatform(options, loop.operations()).value();
  }

  host::PollLoop loop;
  const test::Environment zone{"TZ", "America/New_York"};
};

TEST_F(ToldWorldTest, appearance_isToldElseSavedElseLight) {
  const auto style = [&](std::vector<std::string> words) {
    return platformOf(std::move(words)).device.userInterfaceStyle();
  };
  EXPECT_EQ(style({}), 1);
  ASSERT_EQ(run({"phone", "--appearance", "dark"}).status, 0);
  EXPECT_EQ(style({}), 2);
  EXPECT_EQ(style({"--appearance", "light"}), 1);
  EXPECT_EQ(style({"--appearance", "desktop"}), 1);
}

TEST_F(ToldWorldTest, time_standsStill) {
  const test::Environment twin("VITRELLE_NOW", "2026-11-21T13:30Z");
  EXPECT_EQ(platformOf({}).dateTime.now(), Date{816960600});
  const Platform platform = platformOf({"--now", "2026-11-21T08:30:07"});
  EXPECT_EQ(platform.dateTime.now(), Date{816960607});
  EXPECT_EQ(platform.dateTime.startOfDay(platform.dateTime.now()), Date{816960600 - 8.5 * 3600});
}

TEST_F(ToldWorldTest, battery_isAsFullWhetherItIsMonitoredOrNot) {
  const test::Environment twin("VITRELLE_BATTERY", "0.25");
  EXPECT_EQ(platformOf({}).battery.level(), 0.25F);
  const std::pair<const char*, float> cases[] = {
      {"0.73", 0.73F}, {"1", 1}, {"1.0", 1}, {"0", 0}, {"-1", -1}};
  for (const auto& [text, level] : cases) {
    const Battery battery = platformOf({"--battery", text}).battery;
    EXPECT_EQ(battery.level(), level) << text;
    battery.setMonitoringEnabled(true);
    float told = 2;
    const Subscription watch = battery.watch([&](float now) { told = now; });
    EXPECT_EQ(told, level) << text;
  }
}

TEST_F(ToldWorldTest, weatherService_hasAnAddressOfTheWeb) {
  const test::Environment twin("VITRELLE_WEATHER_URL", "http://127.0.0.1:8080/w?key=1");
  EXPECT_EQ(hostOptions(optionsOf({})).weatherUrl, "http://127.0.0.1:8080/w?key=1");
  for (const char* url : {"https://example.org/", "http://localhost", "https://[::1]:80/a"})
    EXPECT_EQ(hostOptions(optionsOf({"--weather-url", url})).weatherUrl, url);
  for (const char* url :
       {"", "example.org", "ftp://example.org/", "file:///etc/passwd", "https://", "https:///path",
        "https://?a=b", "HTTPS//x", "http://a b", "http://a\n"}) {
    EXPECT_EQ(run({"phones", "--weather-url", url}).status, 2) << url;
  }
  EXPECT_EQ(run({"phone"}, {{"VITRELLE_WEATHER_URL", "here"}}).status, 2);
}

TEST_F(ToldWorldTest, location_isAllowedAndThere) {
  const test::Environment twin("VITRELLE_LOCATION", "1,2");
  const std::pair<std::vector<std::string>, Coordinate> cases[] = {
      {{}, {1, 2}},
      {{"--location", "52.52,13.405"}, {52.52, 13.405}},
      {{"--location", "-33.86,151.2"}, {-33.86, 151.2}},
      {{"--location", "51.5,-0.12"}, {51.5, -0.12}},
      {{"--location", "-90,180.0"}, {-90, 180}},
      {{"--location=-0,-180"}, {0, -180}}};
  for (const auto& [words, position] : cases) {
    const Location location = platformOf(words).location;
    EXPECT_EQ(location.authorizationStatus(), AuthorizationStatus::authorizedWhenInUse);
    std::vector<Coordinate> told;
    const Subscription updates =
        location.startUpdatingLocation([&](const auto& positions) { told = positions; });
    EXPECT_EQ(told, std::vector{position}) << position.latitude << "," << position.longitude;
  }
}

TEST_F(ToldWorldTest, wrongValues_areWrongUsage) {
  for (const char* level : {"", "73%", "1.01", "-0.5", "-2", "-0", ".5", "1.", "1e-1", "0x1", "nan",
                            "0,5", " 1", "00.5", "inf"}) {
    EXPECT_EQ(run({"phones", "--battery", level}).status, 2) << level;
  }
  for (const char* place :
       {"", "Berlin", "52.5", "52.5,", ",13.4", "52.5 13.4", "52.5, 13.4", "52,5,13,4", "90.1,0",
        "0,-180.5", "--1,0", "nan,0", "0,inf", "1e1,0", "+1,0", "5.,5", "52.5N,13.4E"}) {
    EXPECT_EQ(run({"phones", "--location", place}).status, 2) << place;
  }
  const test::Outcome outcome = run({"--now", "noon", "phones"});
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.complaints, "vitrelle: --now: 'noon' is no time such as 2026-11-21T13:30:00 "
                                "(see 'vitrelle --help')\n");
  EXPECT_EQ(run({"phone"}, {{"VITRELLE_NOW", "2026-02-30T00:00"}}).status, 2);
  EXPECT_EQ(run({"phone"}, {{"VITRELLE_BATTERY", "full"}}).status, 2);
  EXPECT_EQ(run({"phone"}, {{"VITRELLE_LOCATION", "here"}}).status, 2);
  EXPECT_EQ(run({"phone"}, {{"VITRELLE_BATTERY", ""}}).status, 0) << "unset";
}

} // namespace
} // namespace vitrelle::cli
