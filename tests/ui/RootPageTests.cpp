#include "tests/ui/UiTest.h"

#include <QColor>
#include <QWheelEvent>

namespace vitrelle {
namespace {

class RootPageTest : public test::UiTest {
 protected:
  void addStyles(std::int64_t amount) {
    setNumber("amountOfConfigs", amount);
    for (std::int64_t style = 0; style < amount; ++style)
      addStyle(style);
  }
};

TEST_F(RootPageTest, ticks_selectTheirStyle) {
  addStyles(3);
  setNumber("selectedConfig", 0);
  open();
  const auto colour = [&](const char* tick) {
    return driver->find(tick)->property("colour").value<QColor>();
  };
  const QColor green = colour("tickSymbol0");
  EXPECT_EQ(colour("tickSymbol1"), QColor::fromRgbF(0.17F, 0.17F, 0.18F));
  driver->key(Qt::Key_Right);
  EXPECT_EQ(shell->root()->page(), 1);
  driver->click("tick1");
  EXPECT_EQ(number("selectedConfig"), 1);
  EXPECT_EQ(colour("tickSymbol1"), green);
  EXPECT_NE(colour("tickSymbol0"), green);
  EXPECT_EQ(surroundings.felt, (std::vector<std::string>{"success"}));
  driver->click("tick1");
  EXPECT_EQ(surroundings.felt.back(), "error");
}

TEST_F(RootPageTest, pager_movesByDragWheelAndKeys) {
  addStyles(2);
  open();
  const QPoint spot(200, 300);
  EXPECT_EQ(shell->root()->pageCount(), 3);
  driver->drag(spot, -180);
  EXPECT_EQ(shell->root()->page(), 1);
  driver->drag(spot, 60);
  EXPECT_EQ(shell->root()->page(), 1) << "too short to go back";
  driver->drag({100, 300}, 220);
  EXPECT_EQ(shell->root()->page(), 0);
  QWheelEvent wheel(spot, spot, {}, QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(shell->window(), &wheel);
  EXPECT_EQ(shell->root()->page(), 1);
  driver->key(Qt::Key_End);
  EXPECT_EQ(shell->root()->page(), 2);
  driver->key(Qt::Key_Right);
  EXPECT_EQ(shell->root()->page(), 2);
  driver->key(Qt::Key_Home);
  EXPECT_EQ(shell->root()->page(), 0);
}

TEST_F(RootPageTest, otherWriters_showAtOnce) {
  addStyles(1);
  setNumber("selectedConfig", 0);
  open();
  const auto ticks = [&] { return driver->isShown("tick0") + driver->isShown("tick1"); };
  EXPECT_EQ(ticks(), 1);
  addStyle(1);
  ASSERT_TRUE(platform.defaults.set(Suite::group, "amountOfConfigs", std::int64_t{2}));
  shell->root()->contentAppear();
  EXPECT_EQ(ticks(), 2);
  ASSERT_TRUE(platform.defaults.set(Suite::group, "selectedConfig", std::int64_t{1}));
  EXPECT_EQ(driver->find("tickSymbol1")->property("colour").value<QColor>(),
            QColor::fromRgbF(0.2F, 0.78F, 0.35F));
}

TEST_F(RootPageTest, widgetCentre_needsAStyle) {
  open();
  driver->click("widgetCentreButton");
  EXPECT_TRUE(driver->isShown("alert"));
  EXPECT_EQ(driver->find("alertTitle")->property("text"), "Cannot open Widget Centre");
  EXPECT_EQ(driver->find("alertMessage")->property("text"), "Please Create a Vitrelle Style");
  driver->click("createCard");
  EXPECT_FALSE(driver->isShown("intakePage")) << "nothing behind the alert is pressed";
  driver->key(Qt::Key_Escape);
  EXPECT_FALSE(driver->isShown("alert"));
  driver->click("widgetCentreButton");
  driver->click("alertButton");
  EXPECT_FALSE(driver->isShown("alert"));

  ASSERT_TRUE(platform.defaults.set(Suite::group, "amountOfConfigs", std::int64_t{1}));
  driver->click("widgetCentreButton");
  EXPECT_TRUE(driver->isShown("familyPage"));
  driver->key(Qt::Key_Escape);
  EXPECT_TRUE(driver->eventually([&] { return !driver->isShown("familyPage"); }));
}

TEST_F(RootPageTest, twelveStyles_haveNoCreateCard) {
  addStyles(11);
  open();
  EXPECT_TRUE(driver->isShown("createCard"));
  addStyle(11);
  ASSERT_TRUE(platform.defaults.set(Suite::group, "amountOfConfigs", std::int64_t{12}));
  EXPECT_FALSE(driver->isShown("createCard"));
  EXPECT_EQ(shell->root()->pageCount(), 12);
}

TEST_F(RootPageTest, firstRun_opensASheetThatEscapeCloses) {
  defaults.values(Suite::standard).clear();
  open();
  EXPECT_TRUE(driver->isShown("onboardingSheet"));
  driver->key(Qt::Key_Escape);
  EXPECT_TRUE(driver->eventually([&] { return !driver->isShown("onboardingSheet"); }));
}

TEST_F(RootPageTest, tab_reachesEveryControl) {
  addStyles(1);
  open();
  std::set<QString> reached;
  for (int i = 0; i < 12; ++i) {
    driver->key(Qt::Key_Tab);
    if (const QQuickItem* item = shell->window()->activeFocusItem())
      reached.insert(item->objectName());
  }
  for (const char* name :
       {"tick0", "edit0", "createCard", "knowledgeButton", "widgetCentreButton", "infoButton"}) {
    EXPECT_TRUE(reached.contains(name)) << name;
  }
}

TEST_F(RootPageTest, screenAskedFor_leavesTheLaunchToAnotherStart) {
  addStyles(1);
  folder.images.insert_or_assign("original.png", screenshot);
  folder.images.insert_or_assign("originalDark.png", screenshot);
  const auto expectUntouched = [&](const char* version) {
    const auto groupBefore = defaults.values(Suite::group);
    const auto standardBefore = defaults.values(Suite::standard);
    for (const QString& name : ui::Shell::screenNames()) {
      SCOPED_TRACE(std::string(version) + " " + name.toStdString());
      open({.screen = name, .framed = false, .animated = false, .launches = false});
      EXPECT_FALSE(driver->isShown("intakePage")) << "what is made now would be lost";
      EXPECT_FALSE(driver->isShown("upgradeSheet") || driver->isShown("onboardingSheet"));
      driver->key(Qt::Key_Escape);
      EXPECT_FALSE(driver->isShown("createCard"));
      driver.reset();
      shell.reset();
    }
    EXPECT_EQ(defaults.values(Suite::group), groupBefore);
    EXPECT_EQ(defaults.values(Suite::standard), standardBefore);
  };
  defaults.values(Suite::standard)["last_used_app_version"] = std::string("1.9");
  expectUntouched("1.9");
  defaults.values(Suite::standard).clear();
  defaults.values(Suite::group).clear();
  expectUntouched("none");
  EXPECT_TRUE(folder.written.empty());
}

TEST_F(RootPageTest, everyScreen_opensWithoutAWarning) {
  addStyles(1);
  for (const QString& name : ui::Shell::screenNames()) {
    SCOPED_TRACE(name.toStdString());
    open({.screen = name, .framed = true, .animated = false});
    QTest::qWait(20);
    driver.reset();
    shell.reset();
  }
}

} // namespace
} // namespace vitrelle
