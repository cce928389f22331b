#include "core/slicing/WallpaperIntake.h"

#include "tests/core/app/AppTest.h"

#include <limits>

namespace vitrelle {
namespace {

class WallpaperIntakeTest : public test::AppTest {
 protected:
  static constexpr double leftHalf = 10;
  static constexpr double rightHalf = 300;
};

TEST_F(WallpaperIntakeTest, newStyle_takesTheNextNumberAndStands) {
  setNumber("amountOfConfigs", 2);
  ModernNewLightDark screen(platform);
  screen.appear();
  EXPECT_EQ(console.lines, (std::vector<std::string>{"2"}));
  EXPECT_EQ(screen.styleNumber(), StyleNumber{2});
  EXPECT_EQ(number("amountOfConfigs"), 2);

  screen.tap(leftHalf);
  EXPECT_EQ(number("amountOfConfigs"), 3);
  EXPECT_EQ(screen.activeSheet(), ActiveSheet::photoPicker);
  EXPECT_EQ(screen.pick(screenshot).size(), 12U);
  EXPECT_EQ(screen.activeSheet(), std::nullopt);
  EXPECT_EQ(screen.interfaceStyle(), std::nullopt);

  screen.tap(rightHalf);
  screen.pick(screenshot);
  EXPECT_EQ(number("amountOfConfigs"), 3) << "a second tap counts no second style";
  screen.disappear();
  EXPECT_EQ(number("amountOfConfigs"), 3);
  EXPECT_EQ(folder.written.size(), 24U);
  EXPECT_TRUE(folder.images.contains("2original.png"));
  EXPECT_TRUE(folder.images.contains("2originalDark.png"));
  EXPECT_EQ(console.reloads, 2);
}

TEST_F(WallpaperIntakeTest, halfAStyle_isTakenBackAndItsFilesStay) {
  setNumber("amountOfConfigs", 2);
  {
    ModernNewLightDark screen(platform);
    screen.appear();
    screen.tap(leftHalf);
    screen.pick(screenshot);
    screen.disappear();
  }
  EXPECT_EQ(number("amountOfConfigs"), 2);
  EXPECT_TRUE(folder.images.contains("2original.png"));
  ModernNewLightDark again(platform);
  again.appear();
  again.tap(rightHalf);
  EXPECT_EQ(number("amountOfConfigs"), 3);
}

TEST_F(WallpaperIntakeTest, visitWithoutATap_changesNoCount) {
  for (const bool complete : {true, false}) {
    setNumber("amountOfConfigs", 1);
    folder.images.clear();
    if (complete) addStyle(0);
    ModernNewLightDark screen(platform);
    screen.appear();
    screen.disappear();
    EXPECT_EQ(number("amountOfConfigs"), 1) << complete;
  }
}

class AbandonedStyleTest : public WallpaperIntakeTest {
 protected:
  /// A run that ends without leaving the screen, as when the power fails.
  void abandon(const std::vector<double>& taps) {
    setNumber("amountOfConfigs", 2);
    ModernNewLightDark screen(platform);
    screen.appear();
    for (const double x : taps) {
      screen.tap(x);
      screen.pick(screenshot);
    }
  }
  bool isMarked() { return defaults.values(Suite::standard).contains("styleInTheMaking"); }
};

TEST_F(AbandonedStyleTest, nextStart_judgesIt) {
  abandon({leftHalf});
  EXPECT_EQ(number("amountOfConfigs"), 3);
  takeBackAbandonedStyle(platform);
  EXPECT_EQ(number("amountOfConfigs"), 2);
  EXPECT_TRUE(folder.images.contains("2original.png"));
  EXPECT_FALSE(isMarked());

  abandon({leftHalf, rightHalf});
  takeBackAbandonedStyle(platform);
  EXPECT_EQ(number("amountOfConfigs"), 3) << "it is complete";
  EXPECT_FALSE(isMarked());
  folder.images.erase("2original.png");
  takeBackAbandonedStyle(platform);
  EXPECT_EQ(number("amountOfConfigs"), 3) << "a file that somebody removed is not judged";
}

TEST_F(AbandonedStyleTest, leaving_leavesNothingForTheNextStart) {
  setNumber("amountOfConfigs", 2);
  ModernNewLightDark screen(platform);
  screen.appear();
  EXPECT_FALSE(isMarked());
  screen.tap(leftHalf);
  EXPECT_TRUE(isMarked());
  screen.disappear();
  EXPECT_FALSE(isMarked());
  EXPECT_TRUE(folder.lock.expired());
}

TEST_F(AbandonedStyleTest, whatCannotBeTold_isLeft) {
  abandon({leftHalf});
  const auto expectLeft = [&](std::int64_t amount) {
    takeBackAbandonedStyle(platform);
    EXPECT_EQ(number("amountOfConfigs"), amount);
    EXPECT_TRUE(isMarked());
  };
  {
    const auto lock = platform.files.lock(0);
    expectLeft(3);
  }
  folder.exists = false;
  expectLeft(3);
  folder.exists = true;
  defaults.broken = {Suite::group, Suite::standard};
  expectLeft(3);
  defaults.broken = {};

  setNumber("amountOfConfigs", 4); // another program made one since
  takeBackAbandonedStyle(platform);
  EXPECT_EQ(number("amountOfConfigs"), 4);
  EXPECT_FALSE(isMarked());
}

TEST_F(WallpaperIntakeTest, negativeCounts_endNothing) {
  for (const std::int64_t amount : {std::numeric_limits<std::int64_t>::min(), std::int64_t{-5}}) {
    setNumber("amountOfConfigs", amount);
    ModernNewLightDark screen(platform);
    screen.appear();
    screen.disappear();
    EXPECT_EQ(number("amountOfConfigs"), amount);
    screen.tap(leftHalf);
    EXPECT_EQ(number("amountOfConfigs"), amount + 1);
    screen.disappear();
    EXPECT_EQ(number("amountOfConfigs"), amount);
  }
}

TEST_F(WallpaperIntakeTest, whileAnotherProgramChangesStyles_pressesOnlyTryAgain) {
  setNumber("amountOfConfigs", 2);
  auto others = platform.files.lock(0);
  ModernNewLightDark screen(platform);
  screen.appear();
  screen.tap(leftHalf);
  EXPECT_TRUE(screen.obstacle());
  EXPECT_EQ(screen.activeSheet(), std::nullopt);
  EXPECT_TRUE(screen.pick(screenshot).empty()) << "such as a paste";
  EXPECT_EQ(number("amountOfConfigs"), 2);
  EXPECT_EQ(surroundings.felt, std::vector<std::string>{"error"});

  setNumber("amountOfConfigs", 3); // theirs
  others = Failure{"test", "let go"};
  screen.tap(leftHalf);
  EXPECT_FALSE(screen.obstacle());
  EXPECT_EQ(screen.styleNumber(), StyleNumber{3});
  EXPECT_EQ(number("amountOfConfigs"), 4);
}

TEST_F(WallpaperIntakeTest, countThatCannotBeRead_isNeitherRaisedNorTakenBack) {
  setNumber("amountOfConfigs", 3);
  ModernNewLightDark screen(platform);
  defaults.broken = {Suite::group};
  screen.appear();
  screen.tap(leftHalf);
  EXPECT_TRUE(screen.obstacle());
  defaults.broken = {};
  screen.tap(leftHalf);
  EXPECT_EQ(number("amountOfConfigs"), 4);
  defaults.broken = {Suite::group};
  screen.disappear();
  defaults.broken = {};
  EXPECT_EQ(number("amountOfConfigs"), 4) << "the next start judges it";
  EXPECT_TRUE(defaults.values(Suite::standard).contains("styleInTheMaking"));
}

TEST_F(WallpaperIntakeTest, cancelledPicker_leavesTheFilesAndReloads) {
  setNumber("amountOfConfigs", 0);
  addOriginal(0, lightStyle);
  ModernNewLightDark screen(platform);
  screen.appear();
  screen.tap(leftHalf);
  EXPECT_TRUE(screen.pick(std::nullopt).empty());
  EXPECT_EQ(screen.activeSheet(), std::nullopt);
  EXPECT_EQ(folder.images.at("0original.png"), screenshot);
  EXPECT_EQ(console.reloads, 1);
  EXPECT_TRUE(printed("Storing at 0original"));
}

TEST_F(WallpaperIntakeTest, halvesOfTheScreen_areLightAndDark) {
  const ModernNewLightDark unused(platform);
  ModernChangeLightDark screen(platform, {4});
  const std::pair<double, InterfaceStyle> cases[] = {
      {-5, lightStyle}, {196.4, lightStyle}, {196.5, darkStyle}, {500, darkStyle}};
  for (const auto& [x, style] : cases) {
    screen.tap(x);
    EXPECT_EQ(screen.interfaceStyle(), style) << x;
  }
}

TEST_F(WallpaperIntakeTest, helpSheet_closesWithoutAPicture) {
  ModernChangeLightDark screen(platform, {4});
  screen.appear();
  screen.present(ActiveSheet::perspectiveZoom);
  EXPECT_EQ(screen.activeSheet(), ActiveSheet::perspectiveZoom);
  screen.dismissSheet();
  EXPECT_EQ(screen.activeSheet(), std::nullopt);
  EXPECT_TRUE(folder.written.empty());
  EXPECT_EQ(console.reloads, 0);
}

TEST_F(WallpaperIntakeTest, changingAStyle_countsNothing) {
  ModernChangeLightDark screen(platform, {4});
  screen.tap(rightHalf);
  screen.pick(screenshot);
  EXPECT_TRUE(folder.images.contains("4originalDark.png"));
  EXPECT_EQ(number("amountOfConfigs"), std::nullopt);
  EXPECT_EQ(number("selectedConfig"), std::nullopt);
}

using WallpaperIntakeDeathTest = WallpaperIntakeTest;

TEST_F(WallpaperIntakeDeathTest, newStyleWithoutACount_isFatal) {
  ModernNewLightDark screen(platform);
  EXPECT_DEATH(screen.appear(), "amountOfConfigs");
  EXPECT_DEATH(screen.tap(leftHalf), "amountOfConfigs");
}

} // namespace
} // namespace vitrelle
