#include "tests/ui/UiTest.h"

#include "core/store/GroupStore.h"

#include <gtest/gtest.h>

namespace vitrelle {
namespace {

class GatePageTest : public test::UiTest {
 protected:
  void openAt(const char* screen) {
    open({.screen = QString::fromLatin1(screen), .framed = false, .animated = false});
  }
};

TEST_F(GatePageTest, weather_isEnteredWhereThePositionMayBeKnown) {
  setNumber("amountOfConfigs", 1);
  addStyle(0);
  location.authorize(AuthorizationStatus::denied);
  open();
  openFamily("Weather");
  waitFor("gateRefusal");
  EXPECT_FALSE(driver->isShown("gateSpinner"));
  EXPECT_EQ(driver->find("gateTitle")->property("text").toString(), "We can't get Weather Data");
  waitFor("gateButton");
  EXPECT_TRUE(driver->eventually([&] { return driver->find("gateButton")->hasActiveFocus(); }));
  driver->key(Qt::Key_Return);
  EXPECT_EQ(location.settingsOpened, 1);

  location.authorize(AuthorizationStatus::authorizedWhenInUse);
  waitFor("familyPage");
  driver->click("create");
  waitFor("kindsPage");
  driver->click("kindsFoot");
  EXPECT_EQ(weather.attributions, 1);
  driver->click("kind1");
  waitFor("note");
  driver->click("saveAndContinue");
  EXPECT_EQ(GroupStore(platform).loadRecords(families::weather).at(0).id, 2);

  location.authorize(AuthorizationStatus::denied);
  waitFor("gateRefusal");
  waitForEndOf("familyPage");
  driver->key(Qt::Key_Escape);
  waitFor("widgetCentrePage");
}

TEST_F(GatePageTest, music_isWaitedForAndEntered) {
  openAt("AlphaViewForNowPlaying");
  waitFor("gateSpinner");
  music.authorisations.answer({});
  music.subscriptions.answer(false);
  waitFor("gateRefusal");
  EXPECT_TRUE(driver->isShown("gateOffer"));
  driver->click("gateButton");
  EXPECT_EQ(music.offers, 1);
}

TEST_F(GatePageTest, question_isAnsweredByKeys) {
  open();
  shell->locationQuestion()->ask();
  waitFor("locationQuestion");
  EXPECT_TRUE(driver->find("alertButton")->hasActiveFocus());
  driver->key(Qt::Key_Escape);
  waitForEndOf("locationQuestion");
  EXPECT_EQ(location.choice.permission, AuthorizationStatus::notDetermined);
  shell->locationQuestion()->ask();
  waitFor("locationQuestion");
  driver->key(Qt::Key_Down);
  driver->key(Qt::Key_Return);
  waitForEndOf("locationQuestion");
  EXPECT_EQ(location.choice.permission, AuthorizationStatus::denied);
}

TEST_F(GatePageTest, questionBeforeTheGate_hasTheKeysAndLeavesThemToIt) {
  platform.location.requestWhenInUseAuthorization = [this] { shell->locationQuestion()->ask(); };
  setNumber("amountOfConfigs", 1);
  addStyle(0);
  open();
  openFamily("Weather");
  waitFor("locationQuestion");
  waitFor("gatePage");
  EXPECT_TRUE(driver->find("alertButton")->hasActiveFocus());
  driver->key(Qt::Key_Escape);
  waitForEndOf("locationQuestion");
  EXPECT_TRUE(driver->isShown("gatePage")) << "the question alone is left";
  EXPECT_TRUE(driver->eventually([&] { return driver->find("gateButton")->hasActiveFocus(); }));
  shell->locationQuestion()->ask();
  waitFor("locationQuestion");
  driver->key(Qt::Key_Return);
  waitFor("familyPage");
  EXPECT_TRUE(driver->eventually([&] { return driver->find("create")->hasActiveFocus(); }));
}

TEST_F(GatePageTest, settings_changePermissionSourceAndPlace) {
  openAt("LocationSettingsView");
  driver->click("permission4");
  EXPECT_EQ(location.choice.permission, AuthorizationStatus::authorizedWhenInUse);
  driver->click("fromNowhere");
  EXPECT_EQ(location.choice.source, LocationSource::none);
  driver->click("fromPlace");
  EXPECT_EQ(location.choice.source, LocationSource::none) << "a town comes first";
  for (const char c : std::string("kyo"))
    QTest::keyClick(shell->window(), c);
  geocoder.searched.answer(std::vector<City>{{"Kyoto", "Japan", {35, 135.7}}});
  driver->click("town0");
  EXPECT_EQ(location.choice.source, LocationSource::place);
  EXPECT_EQ(location.choice.city->name, "Kyoto");
  driver->click("fromDesktop");
  EXPECT_EQ(location.choice.source, LocationSource::desktop);
  driver->click("sheetBack");
  waitFor("rootPage");
}

} // namespace
} // namespace vitrelle
