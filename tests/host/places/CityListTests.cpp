#include "host/places/CityList.h"

#include "tests/host/places/TownLines.h"

#include <gtest/gtest.h>

#include <random>

namespace vitrelle::host {
namespace {

using test::countryLine;
using test::line;

const std::string countries = "# Codes\n#ISO\ta\tb\tc\tCountry\n" + countryLine("DE", "Germany") +
                              countryLine("BR", "Brazil") + countryLine("CN", "China") +
                              "FR\tcut off\n";

const std::string cities =
    line({"Würzburg", "Wuerzburg", "Virceburgas,Вюрцбург", "49.79391", "9.95121", "DE", "133731"}) +
    line({"São Paulo", "Sao Paulo", "SP,San Paolo,Cidade Sampa,サンパウロ", "-23.5475", "-46.63611",
          "BR", "10021295"}) +
    line({"Xi’an", "Xi'an", "Hsi-an,Xian,西安", "34.25833", "108.92861", "CN", "4000000"}) +
    line({"Köln", "Koeln", "Cologne,Keulen", "50.93333", "6.95", "DE", "963395"}) +
    line({"Kölleda", "Koelleda", "", "51.18744", "11.24434", "DE", "5822"}) +
    line({"Cologne", "Cologne", "", "45.57897", "9.94106", "IT", "7000"}) +
    line({"Saint-Denis", "Saint-Denis", "", "48.93", "2.35", "FR", "96128"}) +
    line({"Neu Köln", "Neu Koeln", "", "52.48", "13.43", "DE", ""}) +
    line({"Łódź", "Lodz", "", "51.75", "19.46667", "PL", "768755"});

class CityListTest : public testing::Test {
 protected:
  std::vector<std::string> found(const std::string& words, std::size_t most = 20) {
    std::vector<std::string> names;
    for (const City& city : list.search(words, most))
      names.push_back(city.name);
    return names;
  }

  CityList list = CityList::parse(cities, countries).value();
};

TEST_F(CityListTest, search_takesNamesWithoutTheirAccents) {
  for (const char* words : {"sao pau", "SÃO PAULO", "São  Paulo", "paulo", "pau", "sp", "サンパ"})
    EXPECT_EQ(found(words), std::vector<std::string>{"São Paulo"}) << words;
  for (const char* words : {"würz", "wurz", "WUERZBURG", "Wu\u0308rz", "вюрц", "ВЮРЦБУРГ"})
    EXPECT_EQ(found(words), std::vector<std::string>{"Würzburg"}) << words;
  for (const char* words : {"xi'an", "Xi’an", "xian", "xi an", "西安"})
    EXPECT_EQ(found(words), std::vector<std::string>{"Xi’an"}) << words;
  for (const char* words : {"saint denis", "saint-d", "Denis"})
    EXPECT_EQ(found(words), std::vector<std::string>{"Saint-Denis"}) << words;
  for (const char* words : {"łódź", "lodz", "LÓD"})
    EXPECT_EQ(found(words), std::vector<std::string>{"Łódź"}) << words;
}

TEST_F(CityListTest, partOfATown_isNoTown) {
  const std::string more =
      cities + line({"Mitte", "Mitte", "", "52.52", "13.4", "DE", "79582", "PPLX"});
  list = CityList::parse(more, countries).value();
  EXPECT_EQ(list.nearest({52.52, 13.4})->name, "Neu Köln");
  EXPECT_EQ(found("mitte"), std::vector<std::string>());
}

TEST_F(CityListTest, search_hasTheLikeliestFirst) {
  using Names = std::vector<std::string>;
  EXPECT_EQ(found("köln"), (Names{"Köln", "Neu Köln"})) << "the whole name, then the word";
  EXPECT_EQ(found("cologne"), (Names{"Cologne", "Köln"})) << "its own name before another's";
  EXPECT_EQ(found("kö"), (Names{"Köln", "Kölleda", "Neu Köln"})) << "by size";
  EXPECT_EQ(found("s"), (Names{"São Paulo", "Saint-Denis"}));
  EXPECT_EQ(found("kö", 2), (Names{"Köln", "Kölleda"}));
  EXPECT_EQ(found("kö", 0), Names());
  for (const char* words :
       {"", " ", "-,'", "öln", "paul o", "sampa", "sao paulo x", "\xff", "\n", "Köln,"})
    EXPECT_EQ(found(words),
              std::string_view(words) == "Köln," ? Names({"Köln", "Neu Köln"}) : Names())
        << words;
}

TEST_F(CityListTest, towns_comeWithCountryAndPosition) {
  EXPECT_EQ(list.search("köln", 1).front(), (City{"Köln", "Germany", {50.93333, 6.95}}));
  EXPECT_EQ(list.search("saint", 1).front().country, "FR") << "its line is cut off";
}

TEST_F(CityListTest, nearest_isWithinReach) {
  EXPECT_EQ(list.nearest({50.9, 7})->name, "Köln");
  EXPECT_EQ(list.nearest({51.3, 6.95})->name, "Köln") << "41 km";
  EXPECT_EQ(list.nearest({51.4, 6.95}), nullptr) << "52 km";
  EXPECT_EQ(list.nearest({0, 0}), nullptr);
}

TEST(Cities, damagedLines_areLeftOut) {
  const test::TownLine sound{"Köln", "Koeln", "", "50.9", "6.95", "DE", "9"};
  auto broken = [&](auto change) {
    test::TownLine town = sound;
    town.name = "Broken";
    change(town);
    return line(town);
  };
  const std::string text = "\n\t\t\t\n" + std::string(3, '\0') + "\nno columns\n" +
                           broken([](auto& town) { town.latitude = "90.1"; }) +
                           broken([](auto& town) { town.latitude = "nan"; }) +
                           broken([](auto& town) { town.latitude = ""; }) +
                           broken([](auto& town) { town.longitude = "6.95x"; }) +
                           broken([](auto& town) { town.longitude = "-1e999"; }) +
                           broken([](auto& town) { town.name = "Broken\x1b[2J"; }) +
                           broken([](auto& town) { town.name = "Broken\xc3"; }) +
                           broken([](auto& town) { town.name = ""; }) +
                           broken([](auto& town) { town.country = ""; }) + line(sound) +
                           line(sound).substr(0, 30);
  CityList list = CityList::parse(text, "").value();
  EXPECT_EQ(list.search("broken", 20), std::vector<City>());
  EXPECT_EQ(list.search("k", 20), (std::vector<City>{{"Köln", "DE", {50.9, 6.95}}}));
  EXPECT_EQ(list.nearest({50.9, 6.9})->name, "Köln");
}

TEST(Cities, withoutATown_areAFailure) {
  for (const char* text : {"", "\n", "\t", "no columns", "\xff\xfe\n\n"})
    EXPECT_FALSE(CityList::parse(text, countries)) << text;
}

TEST(Cities, garbledLists_areSurvived) {
  std::mt19937 random(3);
  const std::string sound = cities;
  int survivors = 0;
  for (int i = 0; i < 500; ++i) {
    std::string garbled = sound.substr(0, random() % sound.size() + 1);
    for (int change = 0; change < 20; ++change)
      garbled[random() % garbled.size()] = static_cast<char>(random() % 3 == 0 ? '\t' : random());
    auto parsed = CityList::parse(garbled, garbled);
    if (!parsed) continue;
    ++survivors;
    CityList list = *std::move(parsed);
    list.nearest({50, 7});
    EXPECT_LE(list.search("s", 3).size(), 3U);
  }
  EXPECT_GT(survivors, 100);
}

} // namespace
} // namespace vitrelle::host
