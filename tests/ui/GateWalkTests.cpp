// The families behind a gate, from there to the whole screen.
#include "tests/ui/UiTest.h"

#include "core/store/GroupStore.h"

#include <gtest/gtest.h>

namespace vitrelle {
namespace {

class GateWalkTest : public test::UiTest {
 protected:
  GateWalkTest() {
    setNumber("amountOfConfigs", 2);
    addStyle(0);
    addStyle(1);
    location.authorize(AuthorizationStatus::authorizedWhenInUse);
  }

  /// The colours of the wallpaper are worked out a moment after the page is there.
  void suggest() {
    EXPECT_TRUE(driver->eventually([&] {
      surroundings.pass(1);
      return driver->isShown("swatches");
    }));
  }
  /// From the gallery, whose only tile goes with the second wallpaper then.
  void link() {
    waitFor("tile0");
    driver->click("tile0", Qt::RightButton);
    driver->click("assignEntry");
    waitFor("assignPage");
    driver->click("assignPicker");
    driver->click("option2");
    driver->click("saveAndExit");
    waitForEndOf("assignSheet");
    EXPECT_TRUE(driver->isShown("tileLink0"));
    driver->click("sheetClose");
    waitForEndOf("familySheet");
  }
  void seeTheWholeScreen() {
    driver->click("preview");
    waitFor("wallpaper0");
    driver->click("previewButton");
    waitFor("wholePreview");
    driver->key(Qt::Key_Escape);
    waitForEndOf("wholePreview");
    EXPECT_TRUE(driver->isShown("previewPage"));
  }
};

TEST_F(GateWalkTest, music_isMadeLinkedAndSeen) {
  open();
  openFamily("Now Playing");
  waitFor("gateSpinner");
  music.authorisations.answer({});
  music.subscriptions.answer(true);
  waitFor("familyPage");
  driver->click("create");
  waitFor("setupPage");
  EXPECT_TRUE(driver->isShown("note"));
  driver->click("toggle"); // the first, of the picture
  driver->click("saveAndContinue");
  waitFor("colourPage");
  suggest();
  driver->click("saveAndExit");
  waitForEndOf("familySheet");
  driver->click("gallery");
  link();
  EXPECT_EQ(GroupStore(platform).loadRecords(families::music),
            std::vector{(musicWidgetData{.musicShowAlbumArt = false, .musicLinkedConfig = 1})});
  seeTheWholeScreen();
}

TEST_F(GateWalkTest, weather_isMadeInItsSecondFormLinkedAndSeen) {
  open();
  openFamily("Weather");
  waitFor("familyPage");
  driver->click("create");
  waitFor("kindsPage");
  driver->click("kind0");
  waitFor("setupPage");
  driver->click("Complexity 1");
  driver->click("toggle");
  driver->click("saveAndContinue");
  waitFor("colourPage");
  suggest();
  driver->click("toggle"); // the symbol gets a colour of its own
  driver->click("saveAndExit");
  waitForEndOf("familySheet");
  driver->click("gallery");
  link();
  const Colour place = Colour::parse("63E6E3");
  EXPECT_EQ(GroupStore(platform).loadRecords(families::weather),
            std::vector{(weatherWidgetData{.id = 1,
                                           .currentWeatherMulticolour = false,
                                           .showLocationSymbol = false,
                                           .locationSymbolColour = place,
                                           .locationTextColour = place,
                                           .weatherLinkedConfig = 1})});
  seeTheWholeScreen();
}

} // namespace
} // namespace vitrelle
