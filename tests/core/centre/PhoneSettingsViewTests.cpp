#include "core/centre/PhoneSettingsView.h"

#include "core/slicing/DeviceNames.h"
#include "core/slicing/Measurements.h"
#include "host/phone/PhoneModels.h"
#include "tests/core/app/AppTest.h"

namespace vitrelle {
namespace {

class PhoneSettingsTest : public test::AppTest {
 protected:
  PhoneSettingsTest() { phone.models = host::phoneModels(); }

  static std::vector<std::string> names(const PhoneSettingsView& settings) {
    std::vector<std::string> names;
    for (const PhoneLine& line : settings.phones())
      names.push_back(line.name);
    return names;
  }
  static void pick(PhoneSettingsView& settings, const char* name) {
    settings.search(name);
    settings.pick(0);
  }
};

TEST_F(PhoneSettingsTest, search_findsWordsAsTheyAreTyped) {
  struct Case {
    const char* words;
    const char* first;
    std::size_t amount;
  };
  const Case cases[] = {
      {"se 3", "iPhone SE (3rd generation)", 1},
      {"pro max 15", "iPhone 15 Pro Max", 1},
      {"  IPHONE   15 ", "iPhone 15", 4},
      {"iphone15pro", "iPhone 15 Pro", 2},
      {"se", "iPhone SE", 3},
      {"13 mi", "iPhone 13 Mini", 1},
      {"se (2nd", "iPhone SE (2nd generation)", 1},
      {"5", "iPhone 5s", 3},
      {"ini", "", 0},
      {"iPhone 99", "", 0},
      {"ü", "", 0},
      {" - ", "iPhone 16 Plus", 43},
  };
  PhoneSettingsView settings(platform);
  for (const Case& each : cases) {
    settings.search(each.words);
    EXPECT_EQ(settings.phones().size(), each.amount) << each.words;
    const auto& found = settings.phones();
    EXPECT_EQ(found.empty() ? "" : found.front().name, each.first) << each.words;
  }
}

TEST_F(PhoneSettingsTest, phones_tellWhereTheyHaveMeasurements) {
  using enum MeasuredDisplays;
  phone.choice.identifier = "iPhone16,2";
  PhoneSettingsView settings(platform);
  const auto lineOf = [&](std::string_view name) {
    return *std::ranges::find(settings.phones(), name, &PhoneLine::name);
  };
  EXPECT_TRUE(lineOf("iPhone 15 Pro Max").chosen);
  EXPECT_EQ(lineOf("iPhone 15").measured, both);
  EXPECT_EQ(lineOf("iPhone 16").measured, standard);
  EXPECT_EQ(lineOf("iPhone 16 Pro").measured, none);
  EXPECT_EQ(lineOf("iPhone 8").measured, both);
  EXPECT_EQ(lineOf("iPhone SE").measured, standard) << "it can't zoom";
  EXPECT_FALSE(lineOf("iPhone 8").os18) << "it never had that system";
  settings.setOs18(false);
  EXPECT_TRUE(lineOf("iPhone 16").os18);
  EXPECT_FALSE(lineOf("iPhone 15").os18);
}

TEST_F(PhoneSettingsTest, pick_holdsAtOnceWithAMeasuredSystem) {
  phone.choice.os = {18, 1, 2};
  phone.choice.zoomed = true;
  EXPECT_EQ(deviceName(platform), "iPhone 15 Pro");
  PhoneSettingsView settings(platform);
  pick(settings, "iPhone 14 Plus");
  EXPECT_EQ(deviceName(platform), "iPhone 14 Plus");
  EXPECT_EQ(Measurements::current(platform).widgetSize, 467) << "still zoomed";
  EXPECT_EQ(settings.words(), "");
  EXPECT_EQ(settings.phones().size(), 43U);

  pick(settings, "iPhone SE");
  EXPECT_FALSE(settings.isOs18());
  EXPECT_FALSE(phone.choice.zoomed) << "it has no such setting";
  EXPECT_FALSE(settings.hasZoom());
  EXPECT_EQ(Measurements::current(platform).widgetSize, 282);
  pick(settings, "iPhone 16");
  EXPECT_EQ(phone.choice.os, (OsVersion{18, 1, 2})) << "the version that was told comes back";
  EXPECT_TRUE(settings.hasZoom());
  settings.setOs18(false);
  EXPECT_EQ(settings.measured(), MeasuredDisplays::none) << "what is set by hand is not undone";
  settings.pick(1000);
  EXPECT_EQ(settings.name(), "iPhone 16");
}

TEST_F(PhoneSettingsTest, unknownPhone_standsBeforeAllAndIsKept) {
  phone.choice = {.identifier = "iPad8,9", .os = {18, 0, 0}, .zoomed = true};
  PhoneSettingsView settings(platform);
  EXPECT_EQ(settings.name(), "iPad Pro (11-inch) (2nd generation)");
  EXPECT_EQ(settings.phones().size(), 44U);
  EXPECT_TRUE(settings.phones().front().chosen);
  EXPECT_EQ(settings.measured(), MeasuredDisplays::none);
  EXPECT_TRUE(settings.hasZoom()) << "what is set can be switched off";
  settings.setZoomed(false);
  EXPECT_FALSE(settings.hasZoom());
  settings.pick(0);
  EXPECT_EQ(phone.choice.identifier, "iPad8,9");
  settings.search("ipad");
  EXPECT_TRUE(settings.phones().empty());
}

TEST_F(PhoneSettingsTest, othersAreFollowedAndTroubleIsTold) {
  PhoneSettingsView settings(platform);
  ASSERT_TRUE(choosePhone(platform, {.identifier = "iPhone14,6", .os = {17, 2, 0}}));
  EXPECT_EQ(settings.name(), "iPhone SE (3rd generation)");
  settings.setOs18(true);
  settings.setOs18(false);
  EXPECT_EQ(settings.choice().os, (OsVersion{17, 2, 0}));
  phone.full = true;
  settings.setAppearance(AppearanceChoice::dark);
  EXPECT_EQ(phone.choice.appearance, AppearanceChoice::dark);
  ASSERT_TRUE(settings.trouble());
  EXPECT_EQ(settings.trouble()->why, "the disk is full");
  phone.full = false;
  settings.setAppearance(AppearanceChoice::light);
  EXPECT_FALSE(settings.trouble());
}

} // namespace
} // namespace vitrelle
