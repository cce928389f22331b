#include "host/places/PlaceNames.h"

#include "host/desktop/PollLoop.h"
#include "tests/host/places/TownLines.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <optional>

namespace vitrelle::host {
namespace {

namespace fs = std::filesystem;

const std::string installed = "/usr/share/libtimezonemap/ui";

class PlaceNamesTest : public testing::Test {
 protected:
  PlaceNamesTest() {
    std::string pattern = (fs::temp_directory_path() / "place namesXXXXXX").string();
    folder = mkdtemp(pattern.data());
  }
  ~PlaceNamesTest() override { fs::remove_all(folder); }

  void write(const std::string& name, const std::string& text) const {
    std::ofstream(folder / name) << text;
  }
  Geocoder geocoderOf(const std::string& path) { return makeGeocoder(loop.operations(), path); }
  Result<std::vector<City>> search(const Geocoder& geocoder, const std::string& words) {
    std::optional<Result<std::vector<City>>> told;
    const Subscription asked = geocoder.search(words, 5, [&](const auto& cities) {
      told.emplace(cities);
      loop.stop();
    });
    EXPECT_FALSE(told) << "only once it has returned";
    loop.run();
    return *told;
  }
  Result<std::vector<Placemark>> at(const Geocoder& geocoder, const Coordinate& position) {
    std::optional<Result<std::vector<Placemark>>> told;
    const Subscription asked = geocoder.reverseGeocodeLocation(position, [&](const auto& marks) {
      told.emplace(marks);
      loop.stop();
    });
    loop.run();
    return *told;
  }

  fs::path folder;
  PollLoop loop;
  const std::string kyoto =
      test::line({"Kyoto", "Kyoto", "京都市", "35.02107", "135.75385", "JP", "1459640"});
};

TEST_F(PlaceNamesTest, answers_areThoseOfTheList) {
  write("cities15000.txt", kyoto);
  write("countryInfo.txt", test::countryLine("JP", "Japan"));
  const Geocoder geocoder = geocoderOf(folder);
  EXPECT_EQ(search(geocoder, "kyo").value(),
            (std::vector<City>{{"Kyoto", "Japan", {35.02107, 135.75385}}}));
  EXPECT_EQ(search(geocoder, "osaka").value(), std::vector<City>());
  EXPECT_EQ(at(geocoder, {35, 135.7}).value(), (std::vector<Placemark>{{"Kyoto"}}));
  EXPECT_EQ(at(geocoder, {0, 0}).value(), std::vector<Placemark>());
  fs::remove_all(folder);
  EXPECT_EQ(at(geocoder, {35, 135.7}).value().size(), 1U) << "it is read once";
}

TEST_F(PlaceNamesTest, listThatCantBeRead_isAFailureUntilItCan) {
  const Geocoder geocoder = geocoderOf(folder);
  const std::string file = folder / "cities15000.txt";
  EXPECT_EQ(search(geocoder, "kyoto").failure(), (Failure{file, "No such file or directory"}));
  EXPECT_EQ(at(geocoder, {35, 135.7}).failure(), (Failure{file, "No such file or directory"}));
  fs::create_directory(file);
  EXPECT_EQ(search(geocoder, "kyoto").failure(), (Failure{file, "it is no regular file"}));
  fs::remove(file);
  write("cities15000.txt", "");
  EXPECT_EQ(search(geocoder, "kyoto").failure(), (Failure{file, "it has none"}));
  write("cities15000.txt", kyoto);
  EXPECT_EQ(search(geocoder, "kyoto").value().front().country, "JP") << "no words for countries";
}

TEST_F(PlaceNamesTest, nothingIsReadBeforeTheFirstQuestion_norToldAfterItsEnd) {
  const Geocoder geocoder = geocoderOf(folder);
  write("cities15000.txt", kyoto);
  bool told = false;
  Subscription dropped = geocoder.search("kyoto", 5, [&](const auto&) { told = true; });
  dropped.cancel();
  EXPECT_TRUE(search(geocoder, "kyoto"));
  EXPECT_FALSE(told);
}

TEST_F(PlaceNamesTest, installedList_knowsTheWorld) {
  if (!fs::exists(installed)) GTEST_SKIP() << "there is none";
  const Geocoder geocoder = geocoderOf(installed);
  const std::pair<Coordinate, const char*> places[] = {{{49.79, 9.95}, "Würzburg"},
                                                       {{35.0, 135.75}, "Kyoto"},
                                                       {{-18.15, 178.45}, "Suva"},
                                                       {{-23.55, -46.63}, "São Paulo"},
                                                       {{78.2, 15.6}, "Longyearbyen"}};
  for (const auto& [position, name] : places) {
    const auto marks = at(geocoder, position);
    ASSERT_EQ(marks->size(), 1U) << name;
    EXPECT_EQ(marks->front().locality, name);
  }
  for (const Coordinate& position : {Coordinate{0, 0}, {90, 0}, {-90, 0}, {0, 180}, {0, -180}})
    EXPECT_EQ(at(geocoder, position)->size(), 0U) << position.latitude;
  const std::pair<const char*, const char*> words[] = {{"sao pau", "São Paulo"},
                                                       {"Wurzburg", "Würzburg"},
                                                       {"cologne", "Köln"},
                                                       {"london", "London"},
                                                       {"new y", "New York City"}};
  for (const auto& [typed, name] : words)
    EXPECT_EQ(search(geocoder, typed)->front().name, name) << typed;
  EXPECT_EQ(search(geocoder, "london")->front().country, "United Kingdom");
  EXPECT_EQ(search(geocoder, "san")->size(), 5U);
}

} // namespace
} // namespace vitrelle::host
