#include "core/families/weather/WeatherFamily.h"

#include "core/drawing/Describe.h"
#include "core/families/weather/AlphaWeatherView.h"
#include "core/lifecycle/StyleKinds.h"
#include "tests/core/families/WeatherTest.h"

#include <algorithm>
#include <cmath>

namespace vitrelle {
namespace {

class WeatherFamilyTest : public test::WeatherTest {
 protected:
  const StyleFamily& family = styleFamily("weather");

  std::vector<weatherWidgetData> styles() const {
    return GroupStore(platform).loadRecords(families::weather);
  }
  static std::string titles(const StyleEditor& editor) {
    std::string titles;
    for (const ShownRow& shown : editor.rows())
      titles += (titles.empty() ? "" : ", ") + std::string(shown.row.title.substr(0, 26));
    return titles;
  }
  std::string drawn(const weatherWidgetData& record) {
    return describe(
        layOut(family.face(platform, record, FaceUse::widget), {158, 158}, platform.drawing));
  }
  void storeWeather() {
    store(keys::storedWeatherImage, std::string("cloud.sun"));
    store(keys::storedWeatherTemperature, std::string("21º"));
    store(keys::storedCurrentWeatherDescription, std::string("partlyCloudy"));
    store(keys::storedCurrentWeatherComplexDescription, std::string("partlyCloudy"));
    store(keys::storedCityName, std::string("Oslo"));
  }
  static bool has(const std::string& whole, const std::string& part) {
    return whole.find(part) != std::string::npos;
  }
};

TEST_F(WeatherFamilyTest, gate_opensWhileThePositionMayBeKnown) {
  AlphaWeatherView gate(platform);
  EXPECT_EQ(location.requests, 1);
  int changes = 0;
  const auto view = gate.onChange([&] { ++changes; });
  using enum AuthorizationStatus;
  struct Case {
    AuthorizationStatus status;
    GateState state;
    const char* words;
  };
  for (const Case& c : {Case{notDetermined, GateState::refused, "Not Determinable"},
                        Case{restricted, GateState::refused, "Restricted by User"},
                        Case{denied, GateState::refused, "Denied"},
                        Case{authorizedAlways, GateState::open, "Allowed Always"},
                        Case{authorizedWhenInUse, GateState::open, "Allowed When in Use"},
                        Case{static_cast<AuthorizationStatus>(9), GateState::refused, "unknown"}}) {
    location.authorize(c.status);
    gate.appear();
    EXPECT_EQ(gate.state(), c.state) << c.words;
    EXPECT_EQ(console.lines.back(), c.words);
  }
  EXPECT_EQ(changes, 6);
  gate.press();
  EXPECT_EQ(location.settingsOpened, 1);
}

TEST_F(WeatherFamilyTest, forms_followTheirKind) {
  StyleSetup current(platform, family, {.kind = "currentWeather"});
  current.appear();
  EXPECT_EQ(titles(current), "Complexity, Show Symbol");
  current.setValue(0, std::int64_t{1});
  EXPECT_EQ(titles(current), "Complexity, Show Location Symbol, Show Weather Description");
  EXPECT_EQ(current.save(), Saved::stored);
  EXPECT_EQ(styles()[0].id, 1);
  auto second = current.next();
  second->appear();
  EXPECT_EQ(titles(*second), "Default Symbol Colour, Set Temperature Colour, Set Location Text "
                             "Colour, Set Location Symbol Colour, Set Description Colour");
  second->setValue(0, false);
  EXPECT_TRUE(has(titles(*second), "Set Weather Symbol Colour"));

  for (const auto& [kind, id] : {std::pair("dynamic", 2), std::pair("rings", 3)}) {
    StyleSetup other(platform, family, {.kind = kind});
    other.appear();
    EXPECT_TRUE(has(titles(other), id == 2 ? "The Dynamic Weather Widget" : "The Rings Weather"));
    other.save();
    EXPECT_EQ(styles().back().id, id);
    second = other.next();
    second->appear();
    EXPECT_EQ(titles(*second), "The Dynamic Weather Widget") << "also of rings";
  }
}

TEST_F(WeatherFamilyTest, recordsOfUnknownKinds_areEditedAsTheCurrentWeatherAndKeepTheirNumber) {
  storeWeather();
  GroupStore(platform).saveRecords(families::weather, {{.id = 4}, {.id = -7}});
  for (const std::int64_t index : {0, 1}) {
    StyleSetup setup(platform, family,
                     {.mode = EditorMode::edit, .configNumber = RecordIndex{index}});
    setup.appear();
    EXPECT_EQ(titles(setup), "Complexity");
    EXPECT_TRUE(setup.face({158, 158}).empty()) << "no complexity, no look";
    setup.save();
  }
  EXPECT_EQ(styles()[0].id, 4);
  EXPECT_EQ(styles()[1].id, -7);
  EXPECT_TRUE(has(drawn(styles()[0]), "text \"21º\"")) << "elsewhere it is plain text";
}

TEST_F(WeatherFamilyTest, newStyle_isOneAlsoAfterItsColours) {
  StyleSetup setup(platform, family, {.kind = "currentWeather"});
  setup.appear();
  EXPECT_EQ(setup.save(), Saved::stored);
  // Its colours are not all of whole bytes, so they come back a little different.
  const auto second = setup.next();
  second->appear();
  EXPECT_EQ(second->save(), Saved::stored);
  EXPECT_EQ(styles().size(), 1U);
}

TEST_F(WeatherFamilyTest, kinds_haveLiveSamplesAndTellWhoseDataItIs) {
  storeWeather();
  StyleKinds kinds(platform, family);
  ASSERT_EQ(kinds.kinds().size(), 3U);
  EXPECT_TRUE(has(describe(kinds.sample(kinds.kinds()[0])), "text \"21º\""));
  EXPECT_TRUE(has(describe(kinds.sample(kinds.kinds()[1])), "text \"Oslo\""));
  EXPECT_TRUE(has(describe(kinds.sample(kinds.kinds()[2])), "gauge.medium"));
  kinds.pressFoot();
  EXPECT_EQ(weather.attributions, 1);
}

TEST_F(WeatherFamilyTest, plainAndAdvancedText_showWhatTheirStyleSays) {
  EXPECT_TRUE(has(drawn({}), "symbol \"sun.max\"")) << "before any fetch";
  storeWeather();
  EXPECT_TRUE(has(drawn({}), "symbol \"cloud.sun\"")) << drawn({});
  EXPECT_FALSE(has(drawn({}), "Oslo"));
  EXPECT_FALSE(has(drawn({.showCurrentWeatherSymbol = false}), "symbol"));
  const std::string tinted =
      drawn({.currentWeatherMulticolour = false, .currentWeatherSymbolColour = Colour{1, 0, 0}});
  EXPECT_TRUE(has(tinted, "FF0000")) << tinted;

  const std::string advanced = drawn({.id = 1});
  for (const char* const part :
       {"text \"Oslo\"", "location.fill", "cloud.sun", "text \"21º\"", "text \"PartlyCloudy\""})
    EXPECT_TRUE(has(advanced, part)) << part << "\n" << advanced;
  EXPECT_TRUE(has(advanced, "63E5E3")) << "the place is in the accent colour";
  const std::string less =
      drawn({.id = 1, .showCurrentWeatherDescription = false, .showLocationSymbol = false});
  EXPECT_FALSE(has(less, "location.fill"));
  EXPECT_FALSE(has(less, "PartlyCloudy"));
}

TEST_F(WeatherFamilyTest, dynamic_turnsToRainByTheCondition) {
  storeWeather();
  std::string face = drawn({.id = 2});
  for (const char* const part : {"text \"Oslo\"", "cloud.sun.fill", "text \"PartlyCloudy\""})
    EXPECT_TRUE(has(face, part)) << part << "\n" << face;
  for (const char* const rain :
       {"drizzle", "heavyRain", "rain", "freezingRain", "freezingDrizzle", "thunderstorms"}) {
    store(keys::storedCurrentWeatherDescription, std::string(rain));
    face = drawn({.id = 2});
    EXPECT_FALSE(has(face, "Oslo")) << rain;
    EXPECT_FALSE(has(face, ".fill")) << "the symbol stands as it is";
    EXPECT_FALSE(has(face, "gradient")) << "an empty chart";
  }
  store(keys::currentLocationRainData,
        *encodeRain({{{0}, 1, "a"}, {{3600}, 0, "b"}, {{7200}, 2, "c"}}));
  const auto list = layOut(family.face(platform, weatherWidgetData{.id = 2}, FaceUse::widget),
                           {158, 158}, platform.drawing);
  int bars = 0;
  for (const DisplayItem& item : list) {
    const auto* path = std::get_if<DrawnPath>(&item.content);
    if (path != nullptr && path->gradient && !path->path.commands.empty()) ++bars;
  }
  EXPECT_EQ(bars, 2) << describe(list);
  store(keys::currentLocationRainData, Data{'[', '{'});
  EXPECT_FALSE(has(drawn({.id = 2}), "gradient")) << "damaged data are none";
  store(keys::storedCurrentWeatherDescription, std::string("sleet"));
  EXPECT_TRUE(has(drawn({.id = 2}), "Oslo"));
}

TEST_F(WeatherFamilyTest, extremeValues_stayInTheTile) {
  storeWeather();
  store(keys::storedWeatherTemperature, std::string("-100º"));
  store(keys::storedCityName, std::string(58, 'l'));
  store(keys::storedCurrentWeatherComplexDescription, std::string("isolatedThunderstorms"));
  // Wherever there is room below, lines break, behind a sign of a number too.
  platform.drawing.textSize = [](const std::string& text, const Font& font, const PointSize& room) {
    const double width = static_cast<double>(text.size()) * font.size / 2;
    const double lines =
        std::min(std::ceil(width / room.width), std::floor(room.height / font.size));
    return PointSize{std::min(width, room.width), std::max(lines, 1.0) * font.size};
  };
  for (const std::int64_t id : {0, 1, 2}) {
    for (const double side : {110.0, 150.0}) {
      const auto list = layOut(family.face(platform, weatherWidgetData{.id = id}, FaceUse::gallery),
                               {side, side}, platform.drawing);
      const std::string words = describe(list);
      // Made smaller as a whole, or not at all.
      const auto* group = std::get_if<DrawnGroup>(&list.at(0).content);
      const Transform to = group != nullptr ? group->transform : Transform{};
      for (const DisplayItem& item : group != nullptr ? group->items : list) {
        const auto* text = std::get_if<DrawnText>(&item.content);
        if (text == nullptr) continue;
        EXPECT_GE(to.x + to.a * text->box.x, 0) << words;
        EXPECT_LE(to.x + to.a * (text->box.x + text->box.width), side) << words;
        EXPECT_GE(to.y + to.d * text->box.y, 0) << words;
        const double lines = text->box.height / text->font.size;
        EXPECT_LE(lines, text->text.starts_with('l') ? 2 : 1) << words;
      }
    }
  }
}

TEST_F(WeatherFamilyTest, olderSystem_saysThatItCannot) {
  phone.os = {15, 8, 0};
  for (const std::int64_t id : {0, 1, 2, 3})
    EXPECT_TRUE(has(drawn({.id = id}), "Weather isn't supported")) << id;
}

TEST_F(WeatherFamilyTest, screen_fetchesWhatIsDueAndFollowsTheStore) {
  int changes = 0;
  Subscription life = family.live(platform, [&] { ++changes; });
  EXPECT_EQ(changes, 0);
  EXPECT_EQ(geocoder.asked.questions().size(), 1U);
  Weather wet = test::warmWeather();
  wet.currentWeather.condition = "rain";
  ASSERT_TRUE(answer(wet));
  EXPECT_GT(changes, 0);
  EXPECT_EQ(weather.asked.questions().size(), 1U) << "where it rains, the rain is asked for";
  ASSERT_TRUE(answer(wet));
  changes = 0;
  store(keys::storedCityName, std::string("Bergen"));
  EXPECT_EQ(changes, 1);
  life.cancel();
  store(keys::storedCityName, std::string("Moss"));
  EXPECT_EQ(changes, 1);
  EXPECT_TRUE(geocoder.asked.questions().empty());

  life = family.live(platform, [&] { ++changes; });
  EXPECT_TRUE(weather.asked.questions().empty()) << "nothing is due";
}

} // namespace
} // namespace vitrelle
