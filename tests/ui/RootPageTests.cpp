#include "tests/ui/UiTest.h"

#include "ui/app/WindowPlace.h"

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
  driver->find("widgetCentreButton")->forceActiveFocus();
  driver->key(Qt::Key_Home);
  EXPECT_EQ(shell->root()->page(), 0) << "wherever the keys go";
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
  EXPECT_TRUE(driver->isShown("widgetCentrePage"));
  driver->key(Qt::Key_Escape);
  EXPECT_TRUE(driver->eventually([&] { return !driver->isShown("widgetCentrePage"); }));
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

TEST_F(RootPageTest, whatIsNotThere_isNotLedTo) {
  defaults.values(Suite::standard).clear();
  open();
  EXPECT_TRUE(driver->find("shownPage")->hasActiveFocus()) << "a first run begins at the root";
  EXPECT_FALSE(driver->isShown("knowledgeButton") || driver->isShown("infoButton"));
}

TEST_F(RootPageTest, tab_stopsAtThePageThatIsShown) {
  addStyles(2);
  open();
  const auto stops = [&] {
    QStringList reached;
    for (int i = 0; i < 4; ++i) {
      reached << shell->window()->activeFocusItem()->objectName();
      driver->key(Qt::Key_Tab);
    }
    return reached;
  };
  EXPECT_EQ(stops(), (QStringList{"shownPage", "tick0", "edit0", "widgetCentreButton"}));
  driver->key(Qt::Key_Tab);
  driver->key(Qt::Key_Right);
  EXPECT_TRUE(driver->find("shownPage")->hasActiveFocus()) << "the tick has gone aside";
  EXPECT_EQ(stops(), (QStringList{"shownPage", "tick1", "edit1", "widgetCentreButton"}));
  EXPECT_EQ(accessibleName("shownPage"), "Vitrelle Style 2, Page 2 of 3");
  EXPECT_EQ(accessibleName("edit1"), "Edit Vitrelle Style 2");
}

TEST_F(RootPageTest, enter_doesWhatThePageIsFor) {
  addStyles(2);
  setNumber("selectedConfig", 0);
  open();
  driver->key(Qt::Key_Right);
  driver->key(Qt::Key_Return);
  EXPECT_EQ(number("selectedConfig"), 1);
  driver->key(Qt::Key_End);
  driver->repeat(Qt::Key_Return);
  EXPECT_FALSE(driver->isShown("intakePage")) << "a key that is held presses nothing more";
  driver->find("edit1")->forceActiveFocus();
  driver->repeat(Qt::Key_Return);
  EXPECT_FALSE(driver->isShown("intakePage"));
  driver->find("shownPage")->forceActiveFocus();
  driver->key(Qt::Key_Space);
  EXPECT_TRUE(driver->isShown("intakePage"));
}

TEST_F(RootPageTest, alert_hasTheKeysAndGivesThemBack) {
  open();
  driver->find("widgetCentreButton")->forceActiveFocus();
  driver->key(Qt::Key_Return);
  ASSERT_TRUE(driver->isShown("alert"));
  driver->key(Qt::Key_Tab);
  driver->key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_FALSE(driver->isShown("intakePage")) << "nothing begins beneath it";
  EXPECT_TRUE(driver->find("alertButton")->hasActiveFocus());
  driver->key(Qt::Key_Return);
  EXPECT_FALSE(driver->isShown("alert"));
  EXPECT_TRUE(driver->find("widgetCentreButton")->hasActiveFocus());
}

TEST_F(RootPageTest, notice_takesOneStepBackAndGivesTheKeysBack) {
  addStyles(1);
  open();
  driver->click("edit0");
  ASSERT_TRUE(driver->isShown("intakePage"));
  for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
    shell->notices().show(QStringLiteral("read this"), ui::Notices::Trouble);
    driver->find("darkCell")->forceActiveFocus();
    driver->find("notice")->forceActiveFocus();
    driver->key(key);
    EXPECT_EQ(shell->notices().text(), "");
    EXPECT_TRUE(driver->isShown("intakePage"));
    EXPECT_TRUE(driver->find("darkCell")->hasActiveFocus());
  }
}

TEST_F(RootPageTest, pressOnACardAside_bringsItToTheMiddle) {
  addStyles(2);
  setNumber("selectedConfig", 0);
  open();
  const QQuickItem* tick = driver->find("tick1");
  QTest::mouseClick(shell->window(), Qt::LeftButton, {}, tick->mapToScene(QPointF(2, 2)).toPoint());
  EXPECT_EQ(shell->root()->page(), 1);
  EXPECT_EQ(number("selectedConfig"), 0);
}

TEST_F(RootPageTest, signs_areFoundByAFinger) {
  open();
  const QQuickItem* button = driver->find("widgetCentreButton");
  ASSERT_LT(button->width(), 40);
  const QPointF beside(-2, button->height() / 2);
  QTest::mouseClick(shell->window(), Qt::LeftButton, {}, button->mapToScene(beside).toPoint());
  EXPECT_TRUE(driver->isShown("alert"));
}

TEST_F(RootPageTest, notices_leaveByThemselvesUnlessTheirTroubleLasts) {
  open();
  const auto isBelow = [&] {
    const QQuickItem* notice = driver->find("notice");
    return notice->mapToScene({}).y() > driver->find("shownPage")->height();
  };
  shell->notices().show(QStringLiteral("saved"), ui::Notices::Done);
  EXPECT_TRUE(driver->isShown("notice"));
  EXPECT_TRUE(isBelow()) << "out of the way of titles";
  EXPECT_TRUE(driver->eventually([&] { return !driver->isShown("notice"); }));
  shell->notices().show(QStringLiteral("locked"), ui::Notices::Trouble);
  shell->notices().show(QStringLiteral("saved"), ui::Notices::Done);
  EXPECT_EQ(shell->notices().text(), "locked");
  driver->click("notice");
  EXPECT_EQ(shell->notices().text(), "");
}

TEST_F(RootPageTest, window_comesBackAsItWasLeft) {
  open({.screen = {}, .framed = true, .animated = false});
  shell->window()->setGeometry(40, 50, 300, 620);
  QTest::qWait(20);
  const QRect left = shell->window()->geometry();
  driver.reset();
  shell.reset();
  open({.screen = {}, .framed = true, .animated = false});
  EXPECT_EQ(shell->window()->geometry(), left);
  defaults.values(Suite::standard)["windowPlace"] = std::string("9000 9000 300 620");
  driver.reset();
  shell->window()->setVisibility(QWindow::Hidden); // nothing to keep
  shell.reset();
  open({.screen = {}, .framed = true, .animated = false});
  EXPECT_LT(shell->window()->x(), 2000) << "that screen is gone";
  for (const char* text : {"", "1 2 3", "a b c d", "1 2 300 -4", "1 2 3 4 5", "1e3 2 3 4"})
    EXPECT_FALSE(ui::parsePlace(QString::fromLatin1(text))) << text;
}

TEST_F(RootPageTest, screenAskedFor_leavesTheLaunchToAnotherStart) {
  addStyles(1);
  addSlices(0);
  folder.images.insert_or_assign("original.png", screenshot);
  folder.images.insert_or_assign("originalDark.png", screenshot);
  const auto expectUntouched = [&](const char* version) {
    const auto groupBefore = defaults.values(Suite::group);
    const auto standardBefore = defaults.values(Suite::standard);
    for (const QString& name : ui::Shell::screenNames()) {
      SCOPED_TRACE(std::string(version) + " " + name.toStdString());
      open({.screen = name, .framed = false, .animated = false, .launches = false});
      EXPECT_FALSE(driver->isShown("intakePage")) << "what is made now would be lost";
      driver->key(Qt::Key_Escape);
      EXPECT_FALSE(driver->isShown("createCard"));
      driver.reset();
      shell.reset();
    }
    EXPECT_EQ(defaults.values(Suite::group), groupBefore);
    defaults.values(Suite::standard).erase("appStartUpsCountKey"); // the hub counts itself
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
  addSlices(0);
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
