// The hub and its settings in the real pages.
#include "tests/ui/UiTest.h"

#include <gtest/gtest.h>

namespace vitrelle {
namespace {

class WidgetCentrePageTest : public test::UiTest {
 protected:
  void openCentre() {
    addStyle(0);
    setNumber("amountOfConfigs", 1);
    setNumber("selectedConfig", 0);
    defaults.values(Suite::standard)["last_used_app_version"] = std::string("2.2");
    open();
    driver->click("widgetCentreButton");
    waitFor("widgetCentrePage");
  }
  std::int64_t appearances() {
    const auto& values = defaults.values(Suite::standard);
    return std::get<std::int64_t>(values.at("appStartUpsCountKey"));
  }
  bool hasKeys(const char* objectName) { return driver->find(objectName)->hasActiveFocus(); }
};

TEST_F(WidgetCentrePageTest, tiles_growAndLeadOnByKeysAlone) {
  openCentre();
  EXPECT_EQ(appearances(), 1);
  EXPECT_TRUE(hasKeys("tile Image"));
  EXPECT_FALSE(driver->isShown("tile Text"));
  for (int i = 0; i < 3; ++i)
    driver->key(Qt::Key_Right);
  driver->key(Qt::Key_Return);
  EXPECT_TRUE(hasKeys("tile Now Playing")) << "the first of those that came";
  EXPECT_TRUE(driver->eventually(
      [&] { return driver->find("tiles")->property("contentX").toDouble() > 20; }));
  driver->key(Qt::Key_Right);
  driver->key(Qt::Key_Right);
  driver->key(Qt::Key_Return);
  waitFor("familyPage");
  driver->key(Qt::Key_Escape);
  waitForEndOf("familyPage");
  EXPECT_TRUE(driver->isShown("tile Text")) << "for the life of the screen";
  EXPECT_TRUE(hasKeys("tile Text"));
  EXPECT_TRUE(driver->eventually([&] { return appearances() == 2; }));
}

TEST_F(WidgetCentrePageTest, zoomedDisplay_isAList) {
  phone.nativeScale = 3.5;
  openCentre();
  EXPECT_FALSE(driver->isShown("tile More"));
  EXPECT_TRUE(hasKeys("tile Image"));
  for (int i = 0; i < 4; ++i)
    driver->key(Qt::Key_Down);
  EXPECT_TRUE(hasKeys("tile Time"));
  driver->click("tile Time");
  waitFor("familyPage");
}

TEST_F(WidgetCentrePageTest, settings_areASheetOverIt) {
  openCentre();
  driver->click("tile More");
  driver->find("tile Settings")->forceActiveFocus(); // scrolls there
  driver->click("tile Settings");
  waitFor("widgetSettingsPage");
  driver->click("quitToggle");
  EXPECT_EQ(defaults.values(Suite::group).at("quitIfWidgetClicked"), StoreValue(true));
  driver->click("Temperature Unit 1");
  EXPECT_EQ(defaults.values(Suite::group).at("storedWeatherTemperatureFormat"), StoreValue(true));
  const int reloads = console.reloads;
  driver->click("refreshWidgets");
  EXPECT_EQ(console.reloads, reloads + 1);
  EXPECT_EQ(surroundings.felt.back(), "success");
  driver->key(Qt::Key_Escape);
  waitForEndOf("widgetSettingsPage");
  EXPECT_TRUE(hasKeys("tile Settings"));
  EXPECT_EQ(appearances(), 1) << "it was beneath";
}

TEST_F(WidgetCentrePageTest, exportSheet_closesOnTheTileThatOpenedIt) {
  addSlices(0);
  openCentre();
  driver->click("tile More");
  driver->find("tile Export")->forceActiveFocus(); // scrolls there
  driver->click("tile Export");
  waitFor("exportPage");
  driver->find("topLeftSmall")->forceActiveFocus();
  driver->key(Qt::Key_Return);
  waitFor("shareSheet");
  driver->key(Qt::Key_Escape);
  waitForEndOf("shareSheet");
  driver->key(Qt::Key_Escape);
  waitForEndOf("exportPage");
  EXPECT_TRUE(hasKeys("tile Export"));
}

TEST_F(WidgetCentrePageTest, anotherDisplay_changesTheLayout) {
  phone.models = {{.name = "iPhone SE (3rd generation)",
                   .identifiers = {"iPhone14,6"},
                   .standard = {.bounds = {375, 667}, .scale = 2, .nativeScale = 2},
                   .zoomed = {.bounds = {320, 568}, .scale = 2, .nativeScale = 2.34375}}};
  openCentre();
  EXPECT_TRUE(driver->isShown("tile More"));
  ASSERT_TRUE(
      platform.phoneBook.save({.identifier = "iPhone14,6", .os = {18, 0, 0}, .zoomed = true}));
  waitForEndOf("tile More");
  EXPECT_TRUE(driver->isShown("tile Time"));
}

TEST_F(WidgetCentrePageTest, settingsOfABetaBuild_blockTheTap) {
  surroundings.receipt = "sandboxReceipt";
  open({.screen = "WidgetSettingsView", .framed = false, .animated = false});
  EXPECT_TRUE(driver->isShown("betaNote"));
  driver->click("quitToggle");
  EXPECT_FALSE(defaults.values(Suite::group).contains("quitIfWidgetClicked"));
}

TEST_F(WidgetCentrePageTest, reviewRequest_canBePutOffOrClosedForGood) {
  openCentre();
  shell->reviewQuestion()->ask();
  waitFor("reviewQuestion");
  driver->key(Qt::Key_Down);
  driver->key(Qt::Key_Down);
  driver->key(Qt::Key_Return);
  waitForEndOf("reviewQuestion");
  EXPECT_EQ(defaults.values(Suite::standard).at("reviewClosed"), StoreValue(true));
  EXPECT_TRUE(hasKeys("tile Image"));
}

} // namespace
} // namespace vitrelle
