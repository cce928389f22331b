// Places by name and by position, from the list that the system has.
#include "tests/cli/Program.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <filesystem>

namespace vitrelle {
namespace {

using Json = nlohmann::json;
using test::Outcome;

class PlaceCommandTest : public test::ProgramTest {
 protected:
  void SetUp() override {
    if (!std::filesystem::exists("/usr/share/libtimezonemap/ui/cities15000.txt"))
      GTEST_SKIP() << "there is no list";
  }
};

TEST_F(PlaceCommandTest, townsOfAName_areListed) {
  const Outcome found = run({"place", "wurzb"});
  EXPECT_EQ(found.status, 0) << found.complaints;
  EXPECT_EQ(found.output, "Würzburg\tGermany\t49.79391,9.95121\n");
  const Json cities = Json::parse(run({"place", "sao pau", "--json"}).output).at("cities");
  EXPECT_EQ(cities.at(0), (Json{{"name", "São Paulo"},
                                {"country", "Brazil"},
                                {"latitude", -23.5475},
                                {"longitude", -46.63611}}));
  EXPECT_EQ(Json::parse(run({"place", "san", "--json"}).output).at("cities").size(), 20U);
}

TEST_F(PlaceCommandTest, townAtAPosition_isNamed) {
  EXPECT_EQ(run({"place", "49.8,9.9"}).output, "Würzburg\n");
  EXPECT_EQ(run({"place", "-33.87,151.21"}).output, "Sydney\n");
  EXPECT_EQ(Json::parse(run({"place", "51.51,-0.13", "--json"}).output),
            (Json{{"placemarks", {{{"locality", "London"}}}}}));
}

TEST_F(PlaceCommandTest, whatIsNotFound_failsInOneLine) {
  const std::pair<const char*, const char*> cases[] = {
      {"Qwert\nYuiop", "vitrelle: Qwert\\nYuiop: no town has this name\n"},
      {"'", "vitrelle: ': no town has this name\n"},
      {"0,0", "vitrelle: 0,0: there is no town near it\n"},
      {"-90,180", "vitrelle: -90,180: there is no town near it\n"}};
  for (const auto& [place, complaint] : cases) {
    const Outcome outcome = run({"place", place, "--json"});
    EXPECT_EQ(outcome.status, 1) << place;
    EXPECT_EQ(outcome.output, "") << place;
    EXPECT_EQ(outcome.complaints, complaint);
  }
}

TEST_F(PlaceCommandTest, wrongPositions_areWrongUsage) {
  for (const char* place : {"", " ", "91,0", "52.5", "52.5, 13.4", "1,2,3", "-1"})
    EXPECT_EQ(run({"place", place}).status, 2) << place;
  EXPECT_EQ(run({"place"}).status, 2);
}

} // namespace
} // namespace vitrelle
