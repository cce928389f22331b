// The hub, its settings, and when a review is asked for.
#include "core/centre/ModernWidgetCentre.h"
#include "core/centre/ReviewHandler.h"
#include "core/centre/ReviewQuestion.h"
#include "core/centre/WidgetSettingsView.h"
#include "tests/core/app/AppTest.h"

#include <gtest/gtest.h>

#include <limits>

namespace vitrelle {
namespace {

class WidgetCentreTest : public test::AppTest {
 protected:
  static std::vector<std::string> texts(const ModernWidgetCentre& centre) {
    std::vector<std::string> texts;
    for (const HubTile& tile : centre.tiles())
      texts.emplace_back(tile.text);
    return texts;
  }
  std::string tap(ModernWidgetCentre& centre, std::string_view text) {
    for (const HubTile& tile : centre.tiles()) {
      if (tile.text == text) return centre.tap(tile);
    }
    ADD_FAILURE() << "there is no tile " << text;
    return {};
  }
  void appear(int times) {
    const ModernWidgetCentre centre(platform);
    for (int i = 0; i < times; ++i)
      centre.appear();
  }
  std::map<std::string, StoreValue>& standard() { return defaults.values(Suite::standard); }
};

const std::vector<std::string> all{"Image", "Weather", "Battery",  "Now Playing",
                                   "Time",  "Text",    "Settings", "Export"};

TEST_F(WidgetCentreTest, standardDisplay_growsByMore) {
  ModernWidgetCentre centre(platform);
  EXPECT_FALSE(centre.isList());
  EXPECT_EQ(texts(centre), (std::vector<std::string>{"Image", "Weather", "Battery", "More"}));
  EXPECT_EQ(tap(centre, "More"), "");
  EXPECT_EQ(texts(centre), all);
  EXPECT_EQ(surroundings.felt, std::vector<std::string>{"light impact"});
  EXPECT_DOUBLE_EQ(centre.padding(), 393.0 / 9);
}

TEST_F(WidgetCentreTest, zoomedDisplay_listsAllInGrey) {
  phone.nativeScale = 3.5;
  const ModernWidgetCentre centre(platform);
  EXPECT_TRUE(centre.isList());
  EXPECT_EQ(texts(centre), all);
  EXPECT_GT(centre.tiles()[6].colour.red, 0.5) << "not the panel's colour of the grid";
}

TEST_F(WidgetCentreTest, tiles_leadToTheirScreens) {
  ModernWidgetCentre centre(platform);
  tap(centre, "More");
  EXPECT_EQ(tap(centre, "Image"), "CustomImageView");
  EXPECT_EQ(tap(centre, "Weather"), "AlphaWeatherView");
  EXPECT_EQ(tap(centre, "Battery"), "ModernCustomBatteryView");
  EXPECT_EQ(tap(centre, "Now Playing"), "AlphaViewForNowPlaying");
  EXPECT_EQ(tap(centre, "Time"), "ModernTimeView");
  EXPECT_EQ(tap(centre, "Text"), "ModernCustomTextView");
  EXPECT_EQ(tap(centre, "Settings"), "");
  EXPECT_TRUE(centre.showSettings());
  centre.dismissSheet();
  tap(centre, "Export");
  EXPECT_TRUE(centre.showExport() && !centre.showSettings());
  EXPECT_EQ(surroundings.felt.size(), 9U);
}

TEST_F(WidgetCentreTest, settings_areStoredAtOnce) {
  WidgetSettingsView settings(platform);
  settings.setQuitIfWidgetClicked(true);
  EXPECT_EQ(defaults.values(Suite::group).at("quitIfWidgetClicked"), StoreValue(true));
  EXPECT_EQ(console.reloads, 0);

  settings.setWeatherTempFormat(false);
  EXPECT_FALSE(defaults.values(Suite::group).contains("storedWeatherTemperatureFormat"));
  settings.setWeatherTempFormat(true);
  EXPECT_EQ(defaults.values(Suite::group).at("storedWeatherTemperatureFormat"), StoreValue(true));
  EXPECT_EQ(console.reloads, 1);

  settings.refreshWidgets();
  settings.refreshWidgets();
  EXPECT_EQ(console.reloads, 3);
  EXPECT_EQ(surroundings.felt, (std::vector<std::string>{"success", "success"}));
}

TEST_F(WidgetCentreTest, betaBuild_keepsWhatATapDoes) {
  surroundings.receipt = "/bundle/StoreKit/sandboxReceipt";
  defaults.values(Suite::group)["quitIfWidgetClicked"] = true;
  WidgetSettingsView settings(platform);
  EXPECT_TRUE(settings.isQuitBlocked());
  settings.setQuitIfWidgetClicked(false);
  EXPECT_TRUE(settings.quitIfWidgetClicked());
  surroundings.receipt = "/bundle/StoreKit/receipt";
  EXPECT_TRUE(WidgetSettingsView(platform).isQuitBlocked()) << "worked out once";
}

TEST_F(WidgetCentreTest, review_isAskedForAtTheFourthAppearanceAndAfterThePause) {
  surroundings.scenes = {{ActivationState::background}, {ActivationState::foregroundActive}};
  appear(3);
  surroundings.pass(3);
  EXPECT_TRUE(surroundings.reviewsRequested.empty());
  appear(1);
  surroundings.pass(1.9);
  EXPECT_TRUE(surroundings.reviewsRequested.empty()) << "not before its time";
  time.now.secondsSinceReferenceDate += 2;
  surroundings.pass(0.2);
  ASSERT_EQ(surroundings.reviewsRequested.size(), 1U) << "though the screen has gone";
  EXPECT_EQ(surroundings.reviewsRequested[0].activationState, ActivationState::foregroundActive);
  const Date due{time.now.secondsSinceReferenceDate + 5184000};
  EXPECT_EQ(standard().at("appReviewAskDate"), StoreValue(due));

  time.now = due;
  appear(1);
  surroundings.pass(3);
  EXPECT_EQ(surroundings.reviewsRequested.size(), 1U) << "the date itself is not past";
  time.now.secondsSinceReferenceDate += 1;
  appear(1);
  surroundings.pass(3);
  EXPECT_EQ(surroundings.reviewsRequested.size(), 2U);
  EXPECT_EQ(standard().at("appStartUpsCountKey"), StoreValue(std::int64_t{6}));
}

TEST_F(WidgetCentreTest, review_withoutASceneInFrontMovesTheDateAllTheSame) {
  standard()["appStartUpsCountKey"] = std::int64_t{7};
  standard()["appReviewAskDate"] = std::string("tomorrow"); // as the distant past
  surroundings.scenes = {{ActivationState::foregroundInactive}};
  appear(2);
  surroundings.pass(2);
  EXPECT_TRUE(surroundings.reviewsRequested.empty());
  EXPECT_EQ(standard().at("appReviewAskDate"),
            StoreValue(Date{time.now.secondsSinceReferenceDate + 5184000}));
  standard()["appStartUpsCountKey"] = std::numeric_limits<std::int64_t>::max();
  EXPECT_DEATH(appear(1), "more often than can be counted");
}

TEST_F(WidgetCentreTest, reviewQuestion_closedForGoodIsNotAskedAgain) {
  ReviewQuestion first(platform);
  first.ask();
  EXPECT_TRUE(first.shown());
  first.dismiss();
  first.ask();
  EXPECT_FALSE(first.shown()) << "once in a run";
  ReviewQuestion second(platform);
  second.ask();
  second.close();
  EXPECT_FALSE(second.shown());
  ReviewQuestion third(platform);
  third.ask();
  EXPECT_FALSE(third.shown());
}

} // namespace
} // namespace vitrelle
