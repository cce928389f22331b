#include "core/app/ModernContentView.h"
#include "core/centre/BannerAd.h"
#include "core/slicing/PhoneChoices.h"

#include "tests/core/app/AppTest.h"

#include <limits>
#include <tuple>

namespace vitrelle {
namespace {

class ModernContentViewTest : public test::AppTest {
 protected:
  std::optional<std::string> storedVersion() {
    const auto& values = defaults.values(Suite::standard);
    const auto found = values.find("last_used_app_version");
    if (found == values.end()) return std::nullopt;
    return std::get<std::string>(found->second);
  }
  void setStoredVersion(const std::string& version) {
    defaults.values(Suite::standard)["last_used_app_version"] = version;
  }
  std::vector<std::int64_t> listed(const ModernContentView& root) const {
    std::vector<std::int64_t> numbers;
    for (const VitrelleConfigData& style : root.vitrelleConfigs())
      numbers.push_back(style.configNumber.value);
    return numbers;
  }
};

TEST_F(ModernContentViewTest, firstRun_opensOnboardingAndStartsTheCounts) {
  ModernContentView root(platform);
  root.appear();
  EXPECT_TRUE(root.showOnboarding());
  EXPECT_FALSE(root.showUpdateFromOne());
  EXPECT_EQ(storedVersion(), "2.2");
  EXPECT_EQ(number("amountOfConfigs"), 0);
  EXPECT_EQ(number("selectedConfig"), 0);
  ASSERT_GT(console.lines.size(), 2U);
  EXPECT_EQ(console.lines[0], "0");
  EXPECT_EQ(console.lines[1], "iPhone 15 Pro");
  EXPECT_EQ(console.lines.back(), "2.2");
  EXPECT_EQ(console.reloads, 1);
  EXPECT_EQ(root.pageCount(), 1);
  EXPECT_FALSE(root.openWidgetCentre());
  EXPECT_TRUE(root.showingAlert());
  root.dismissAlert();
  EXPECT_FALSE(root.showingAlert());
}

TEST_F(ModernContentViewTest, ordinaryRun_writesNothing) {
  setStoredVersion("2.2");
  setNumber("amountOfConfigs", 3);
  ModernContentView root(platform);
  root.appear();
  EXPECT_FALSE(root.showOnboarding() || root.showUpdateFromOne() || root.popoverIsPresented());
  EXPECT_EQ(number("amountOfConfigs"), 3);
  EXPECT_EQ(number("selectedConfig"), std::nullopt);
  EXPECT_EQ(console.reloads, 1);
  EXPECT_TRUE(root.openWidgetCentre());
  EXPECT_FALSE(root.showingAlert());
}

TEST_F(ModernContentViewTest, storeThatCannotBeRead_passesForNoKindOfRun) {
  setStoredVersion("2.2");
  setNumber("amountOfConfigs", 3);
  setNumber("selectedConfig", 2);
  const auto before = defaults.values(Suite::group);
  for (const Suite suite : {Suite::standard, Suite::group}) {
    defaults.broken = {suite};
    ModernContentView root(platform);
    root.appear();
    EXPECT_FALSE(root.showOnboarding());
    EXPECT_FALSE(root.showsCreateCard()) << "a new style would be number 0";
    surroundings.felt.clear();
    root.selectConfig({1});
    EXPECT_EQ(surroundings.felt, std::vector<std::string>{"error"});
    root.openWidgetCentre();
    EXPECT_FALSE(root.showingAlert()) << "there are styles, as far as one can tell";
    defaults.broken = {};
    EXPECT_EQ(defaults.values(Suite::group), before);
    EXPECT_EQ(storedVersion(), "2.2");
    ASSERT_TRUE(platform.defaults.set(Suite::group, "selectedConfig", std::int64_t{2}));
    EXPECT_TRUE(root.showsCreateCard());
  }
}

TEST_F(ModernContentViewTest, launchOverAStoreThatCannotBeRead_isDecidedWhenItCan) {
  defaults.broken = {Suite::standard};
  ModernContentView root(platform);
  root.appear();
  root.contentAppear();
  EXPECT_FALSE(root.showsCreateCard());
  EXPECT_EQ(number("amountOfConfigs"), std::nullopt);
  defaults.broken = {};
  EXPECT_FALSE(root.showsCreateCard()) << "the first run would lose what is made before it";
  ASSERT_TRUE(platform.defaults.remove(Suite::standard, "last_used_app_version"));
  EXPECT_TRUE(root.showOnboarding());
  EXPECT_EQ(number("amountOfConfigs"), 0);
  EXPECT_TRUE(root.showsCreateCard());
}

TEST_F(ModernContentViewTest, firstRunBesideAProgramThatMakesAStyle_waitsForIt) {
  auto lock = platform.files.lock(0);
  ModernContentView root(platform);
  root.appear();
  EXPECT_FALSE(root.showOnboarding());
  setNumber("selectedConfig", 0);
  setStoredVersion("2.2");
  lock = Failure{"test", "let go"};
  ASSERT_TRUE(platform.defaults.set(Suite::group, "amountOfConfigs", std::int64_t{1}));
  EXPECT_EQ(number("amountOfConfigs"), 1) << "it made one, and stored the version";
  EXPECT_FALSE(root.showOnboarding());
  EXPECT_TRUE(root.showsCreateCard());
}

TEST_F(ModernContentViewTest, stylesThatCannotBeListedNow_areListedWhenTheyCan) {
  setStoredVersion("2.2");
  setNumber("amountOfConfigs", 1);
  addStyle(0);
  ModernContentView root(platform);
  root.appear();
  root.contentAppear();
  defaults.broken = {Suite::group};
  root.reloadConfigs();
  defaults.broken = {};
  addStyle(1);
  ASSERT_TRUE(platform.defaults.set(Suite::group, "amountOfConfigs", std::int64_t{2}));
  EXPECT_EQ(listed(root), (std::vector<std::int64_t>{0, 1}));
}

TEST_F(ModernContentViewTest, upgradeWithinTheGeneration_isTakenAgainAtEachLaunch) {
  for (const char* version : {"2.1", "1.2", "3.2"}) {
    setStoredVersion(version);
    setNumber("amountOfConfigs", 1);
    ModernContentView root(platform);
    root.appear();
    EXPECT_EQ(root.activePopover(), ActivePopoverContent::whatsNew) << version;
    EXPECT_TRUE(root.popoverIsPresented()) << version;
    EXPECT_EQ(storedVersion(), version);
    EXPECT_EQ(number("amountOfConfigs"), 1) << version;
    EXPECT_TRUE(printed(std::string("was previously running ") + version));
  }
}

TEST_F(ModernContentViewTest, upgradeFromTheFirstGeneration_copiesItsPair) {
  setStoredVersion("1.9");
  setNumber("amountOfConfigs", 5);
  setNumber("selectedConfig", 4);
  folder.images.insert_or_assign("original.png", screenshot);
  folder.images.insert_or_assign("originalDark.png", screenshot);
  ModernContentView root(platform);
  root.contentAppear();
  root.appear();
  EXPECT_TRUE(root.showUpdateFromOne());
  EXPECT_EQ(storedVersion(), "2.2");
  EXPECT_EQ(number("amountOfConfigs"), 1);
  EXPECT_EQ(number("selectedConfig"), 0);
  EXPECT_EQ(folder.written.size(), 24U);
  EXPECT_EQ(folder.written.front(), "0original.png");
  EXPECT_TRUE(folder.images.contains("0bottomLargeDark.png"));
  EXPECT_TRUE(folder.images.contains("original.png"));
  EXPECT_TRUE(printed("Got Legacy Light and Dark"));
  EXPECT_TRUE(printed("Moved to new location"));
  EXPECT_EQ(console.reloads, 3);

  EXPECT_EQ(listed(root), (std::vector<std::int64_t>{}));
  surroundings.pass(1.9);
  EXPECT_EQ(listed(root), (std::vector<std::int64_t>{}));
  surroundings.pass(0.1);
  EXPECT_EQ(listed(root), (std::vector<std::int64_t>{0}));
}

TEST_F(ModernContentViewTest, halfALegacyPair_isNotMoved) {
  for (const char* name : {"original.png", "originalDark.png"}) {
    setStoredVersion("3.0");
    folder.images.clear();
    folder.images.insert_or_assign(name, screenshot);
    ModernContentView root(platform);
    root.appear();
    EXPECT_TRUE(root.showUpdateFromOne());
    EXPECT_EQ(number("amountOfConfigs"), 0) << name;
    EXPECT_TRUE(folder.written.empty()) << name;
  }
}

TEST_F(ModernContentViewTest, unmeasuredPhone_isFeltAndNotHeldAgainstTheVersion) {
  phone.machine = "iPad1,1";
  ModernContentView root(platform);
  root.appear();
  EXPECT_EQ(root.activeAlert(), ActiveAlert::incompatible);
  EXPECT_EQ(surroundings.felt, (std::vector<std::string>{"error"}));
  EXPECT_EQ(storedVersion(), std::nullopt);
  EXPECT_FALSE(root.showOnboarding());
  EXPECT_EQ(console.reloads, 1);
}

TEST_F(ModernContentViewTest, phoneWithMeasurements_letsTheNextStartKeepTheStyles) {
  phone.machine = "iPad1,1";
  ModernContentView root(platform);
  root.appear();
  ASSERT_TRUE(choosePhone(platform, {.identifier = "iPad1,2", .os = {18, 0, 0}}));
  root.phoneChanged();
  EXPECT_EQ(storedVersion(), std::nullopt);
  ASSERT_TRUE(choosePhone(platform, {.identifier = "iPhone14,6", .os = {18, 0, 0}}));
  root.phoneChanged();
  EXPECT_EQ(root.activeAlert(), std::nullopt);
  EXPECT_EQ(storedVersion(), "2.2");
  setNumber("amountOfConfigs", 3);
  ModernContentView(platform).appear();
  EXPECT_EQ(number("amountOfConfigs"), 3);
}

TEST_F(ModernContentViewTest, list_leavesOutWhatLacksAScreenshot) {
  platform.files.fileExists = [](const std::string& path) {
    ADD_FAILURE() << path;
    return false;
  };
  ModernContentView(platform).reloadConfigs(); // no count: no file is looked for
  folder.use(platform);
  setNumber("amountOfConfigs", 3);
  addStyle(0);
  addOriginal(1, lightStyle);
  addStyle(2);
  addStyle(3);
  ModernContentView root(platform);
  root.contentAppear();
  EXPECT_EQ(listed(root), (std::vector<std::int64_t>{0, 2}));
  EXPECT_EQ(root.pageCount(), 4);
}

TEST_F(ModernContentViewTest, selecting_isFeltAndReloadsOnlyWhenItChanges) {
  ModernContentView root(platform);
  int changes = 0;
  const auto view = root.onChange([&] { ++changes; });
  EXPECT_FALSE(root.isSelected({0})) << "without a stored choice no card is marked";
  root.selectConfig({0});
  root.selectConfig({0});
  root.selectConfig({2});
  EXPECT_EQ(surroundings.felt, (std::vector<std::string>{"success", "error", "success"}));
  EXPECT_EQ(console.reloads, 2);
  EXPECT_EQ(number("selectedConfig"), 2);
  EXPECT_EQ(changes, 2);
}

TEST_F(ModernContentViewTest, twelveStyles_leaveNoRoomForAnother) {
  for (const std::int64_t amount : {0, 1, 11, 12, 13}) {
    setNumber("amountOfConfigs", amount);
    const ModernContentView root(platform);
    EXPECT_EQ(root.showsCreateCard(), amount <= 11) << amount;
    EXPECT_EQ(root.pageCount(), amount == 12 ? 12 : amount + 1) << amount;
  }
}

TEST_F(ModernContentViewTest, damagedCount_isListedInPart) {
  using Limits = std::numeric_limits<std::int64_t>;
  setStoredVersion("2.2");
  addStyle(0);
  addStyle(99);
  addStyle(100);
  const std::tuple<std::int64_t, std::vector<std::int64_t>, std::int64_t> cases[] = {
      {Limits::max(), {0, 99}, 101},
      {3'000'000, {0, 99}, 101},
      {-5, {}, 1},
      {Limits::min(), {}, 1}};
  for (const auto& [amount, numbers, pages] : cases) {
    setNumber("amountOfConfigs", amount);
    ModernContentView root(platform);
    root.appear();
    root.contentAppear();
    EXPECT_EQ(listed(root), numbers) << amount;
    EXPECT_EQ(root.pageCount(), pages) << amount;
    EXPECT_EQ(number("amountOfConfigs"), amount);
  }
}

TEST_F(ModernContentViewTest, bindings_tellOfOtherWriters) {
  ModernContentView root(platform);
  int changes = 0;
  const auto view = root.onChange([&] { ++changes; });
  ASSERT_TRUE(platform.defaults.set(Suite::group, "amountOfConfigs", std::int64_t{4}));
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(root.pageCount(), 5);
}

TEST_F(ModernContentViewTest, banner_writesALineForEachCallback) {
  BannerAd(platform, "unit").makeView();
  ASSERT_EQ(surroundings.banners.size(), 1U);
  EXPECT_EQ(surroundings.banners[0].adUnitID, "unit");
  EXPECT_EQ(surroundings.banners[0].width, 320);
  EXPECT_EQ(surroundings.banners[0].height, 50);
  EXPECT_EQ(surroundings.banners[0].rootViewController, std::nullopt) << "there is no window yet";
  surroundings.rootViewController = ViewController{7};
  BannerAd(platform, "unit").makeView();
  EXPECT_EQ(surroundings.banners[1].rootViewController, ViewController{7});
  const BannerDelegate& delegate = surroundings.bannerDelegate;
  delegate.didReceiveAd();
  delegate.didFailToReceiveAd("no network");
  delegate.didRecordImpression();
  delegate.willPresentScreen();
  delegate.willDismissScreen();
  delegate.didDismissScreen();
  EXPECT_EQ(console.lines,
            (std::vector<std::string>{
                "bannerViewDidReceiveAd", "bannerView:didFailToReceiveAdWithError: no network",
                "bannerViewDidRecordImpression", "bannerViewWillPresentScreen",
                "bannerViewWillDIsmissScreen", "bannerViewDidDismissScreen"}));
}

using ModernContentViewDeathTest = ModernContentViewTest;

TEST_F(ModernContentViewDeathTest, bundleWithoutAVersion_isFatal) {
  surroundings.version.reset();
  ModernContentView root(platform);
  EXPECT_DEATH(root.appear(), "CFBundleShortVersionString");
}

} // namespace
} // namespace vitrelle
