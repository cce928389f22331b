// What is set for all widgets, in the real pages.
#include "tests/ui/UiTest.h"

#include <gtest/gtest.h>

namespace vitrelle {
namespace {

class SettingPageTest : public test::UiTest {
 protected:
  void openAt(const char* screen) {
    open({.screen = QString::fromLatin1(screen), .framed = false, .animated = false});
  }
  void store(const char* key, const StoreValue& value) {
    ASSERT_TRUE(platform.defaults.set(Suite::group, key, value));
  }
  std::optional<StoreValue> stored(const char* key) {
    const auto& values = defaults.values(Suite::group);
    const auto found = values.find(key);
    return found == values.end() ? std::nullopt : std::optional(found->second);
  }
  void chooseColour(const char* digits) {
    waitFor("colourChooser");
    driver->find("hexField")->forceActiveFocus();
    driver->key(Qt::Key_A, Qt::ControlModifier);
    for (const char* c = digits; *c != '\0'; ++c)
      QTest::keyClick(shell->window(), *c);
    driver->click("chooserClose");
    waitForEndOf("colourChooser");
  }
  QString text(const char* objectName) {
    return driver->find(objectName)->property("text").toString();
  }
  QColor cover() { return driver->find("cover")->property("colour").value<QColor>(); }
};

TEST_F(SettingPageTest, solidBackground_isSwitchedAndColouredAtOnce) {
  openAt("SolidBackgroundView");
  EXPECT_EQ(cover().alpha(), 0);
  driver->click("solidToggle");
  EXPECT_EQ(stored("solidEnabled"), StoreValue(true));
  EXPECT_EQ(stored("backgroundSolid"), std::nullopt);
  EXPECT_EQ(cover(), QColor(Qt::white));
  driver->click("colourWell");
  chooseColour("336699");
  EXPECT_EQ(stored("backgroundSolid"), StoreValue(std::string("0.2,0.4,0.6,1.0")));
  EXPECT_EQ(cover().name(), "#336699");
  EXPECT_GT(console.reloads, 1);

  store("backgroundSolid", std::string("1.0,0.0,0.0,0.4"));
  EXPECT_EQ(cover().name(QColor::HexArgb), "#66ff0000") << "another process is seen at once";
  store("backgroundSolid", std::string("1.0,0.0"));
  EXPECT_EQ(cover().name(), "#ff0000");
  store("solidEnabled", false);
  EXPECT_EQ(cover().alpha(), 0);
}

TEST_F(SettingPageTest, solidBackground_isSetByKeysAlone) {
  openAt("SolidBackgroundView");
  const auto tabTo = [&](const char* objectName) {
    for (int i = 0; i < 9 && !driver->find(objectName)->hasActiveFocus(); ++i)
      driver->key(Qt::Key_Tab);
    EXPECT_TRUE(driver->find(objectName)->hasActiveFocus()) << objectName;
  };
  tabTo("solidToggle");
  driver->key(Qt::Key_Space);
  EXPECT_EQ(stored("solidEnabled"), StoreValue(true));
  tabTo("colourWell");
  driver->key(Qt::Key_Return);
  waitFor("colourChooser");
  driver->key(Qt::Key_Down); // a darker shade
  EXPECT_NE(stored("backgroundSolid"), std::nullopt);
  driver->key(Qt::Key_Escape);
  waitForEndOf("colourChooser");
  EXPECT_TRUE(driver->find("colourWell")->hasActiveFocus());
  driver->key(Qt::Key_Escape);
  waitForEndOf("solidBackgroundPage");
}

TEST_F(SettingPageTest, date_isSetUpAtOnceAndFollowsOthers) {
  openAt("CustomDateTextView");
  EXPECT_EQ(text("stepperWords"), "Font Size: 18");
  EXPECT_EQ(text("rowValue"), "Helvetica");
  driver->click("stepUp");
  EXPECT_EQ(stored("dateFontSize"), StoreValue(std::int64_t{19}));
  driver->click("colourWell");
  chooseColour("FF0000");
  EXPECT_EQ(stored("dateColour"), StoreValue(std::string("1.0,0.0,0.0,1.0")));

  driver->click("fontRow");
  waitFor("fontPicker");
  EXPECT_EQ(text("currentFont"), "Helvetica");
  for (const char letter : {'i', 'n', 't', 'e', 'r'})
    QTest::keyClick(shell->window(), letter);
  driver->key(Qt::Key_Return);
  waitForEndOf("fontSheet");
  EXPECT_EQ(stored("dateFontPicked"), StoreValue(std::string("Inter-Regular")));
  EXPECT_EQ(text("rowValue"), "Inter-Regular");

  store("dateFontSize", std::int64_t{44});
  EXPECT_EQ(text("stepperWords"), "Font Size: 44");
  for (const std::int64_t size :
       {std::int64_t{0}, std::int64_t{-7}, std::int64_t{1'000'000'000}, std::int64_t{1} << 40}) {
    store("dateFontSize", size);
    driver->find("sizeRow")->forceActiveFocus();
    QTest::qWait(20); // it is drawn
    driver->key(Qt::Key_Up);
    EXPECT_EQ(stored("dateFontSize"), StoreValue(std::int64_t{size < 10 ? 10 : 80})) << size;
  }
}

TEST_F(SettingPageTest, fixedFontPickers_storeTheirChoice) {
  store("timeFontPicked", std::string("Some-Font"));
  openAt("TimeFontPicker");
  console.reloads = 0;
  EXPECT_EQ(text("currentFont"), "Some-Font");
  for (const char letter : {'i', 'n', 't', 'e', 'r'})
    QTest::keyClick(shell->window(), letter);
  driver->key(Qt::Key_Return);
  waitForEndOf("fontPicker");
  EXPECT_EQ(stored("timeFontPicked"), StoreValue(std::string("Inter-Regular")));
  EXPECT_EQ(stored("fontPicked"), std::nullopt);
  EXPECT_EQ(console.reloads, 1);
  EXPECT_TRUE(printed("Inter-Regular 18.0"));
}

TEST_F(SettingPageTest, symbols_arePickedAndSeen) {
  openAt("SFSymbolsPicker");
  const QQuickItem* grid = driver->find("symbolGrid");
  EXPECT_EQ(grid->property("count"), 574);
  EXPECT_TRUE(grid->hasActiveFocus());
  const auto current = [&] { return grid->property("currentIndex").toInt(); };
  const auto isWhole = [&](int index) {
    const QQuickItem* cell = driver->find(QStringLiteral("symbol%1").arg(index));
    return cell != nullptr &&
           grid->boundingRect().contains(cell->mapRectToItem(grid, cell->boundingRect()));
  };
  const auto icon = [&] { return driver->find("currentSymbol")->property("name").toString(); };
  EXPECT_EQ(current(), 0) << "of the symbol that is set";
  driver->key(Qt::Key_Right);
  driver->key(Qt::Key_Space);
  EXPECT_EQ(icon(), "pencil.circle");
  EXPECT_EQ(accessibleName("symbol1"), "pencil circle");
  EXPECT_EQ(surroundings.felt.back(), "medium impact");

  driver->key(Qt::Key_End);
  EXPECT_EQ(current(), 573);
  EXPECT_TRUE(isWhole(573));
  driver->key(Qt::Key_PageUp);
  EXPECT_LT(current(), 550);
  EXPECT_TRUE(isWhole(current()));
  driver->key(Qt::Key_End);
  driver->repeat(Qt::Key_Return);
  EXPECT_EQ(icon(), "pencil.circle") << "a key that is held picks nothing";
  driver->key(Qt::Key_Return);
  EXPECT_EQ(icon(), "checkmark.shield.fill");
  QTest::qWait(20);
  QTest::mouseClick(shell->window(), Qt::LeftButton, {}, QPoint(5, 5));
  EXPECT_EQ(icon(), "checkmark.shield.fill") << "cells above the view are out of reach";
  driver->key(Qt::Key_Home);
  EXPECT_EQ(current(), 0);
  waitFor("symbol7");
  driver->click("symbol7");
  EXPECT_EQ(current(), 7);
  EXPECT_NE(icon(), "checkmark.shield.fill");
  EXPECT_TRUE(driver->isShown("symbolPicker")) << "it stays open";
  int cells = 0;
  for (const QQuickItem* item : grid->property("contentItem").value<QQuickItem*>()->childItems())
    cells += item->objectName().startsWith(QStringLiteral("symbol")) ? 1 : 0;
  EXPECT_LT(cells, 200) << "those in view, and some around them";
  driver->key(Qt::Key_Escape);
  waitForEndOf("symbolPicker");
}

} // namespace
} // namespace vitrelle
