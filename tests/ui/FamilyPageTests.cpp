#include "tests/ui/UiTest.h"

#include "core/store/GroupStore.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace vitrelle {
namespace {

class FamilyPageTest : public test::UiTest {
 protected:
  std::vector<textWidgetData> records() { return GroupStore(platform).loadRecords(families::text); }
  void store(int count) {
    std::vector<textWidgetData> all;
    for (int i = 0; i < count; ++i) {
      textWidgetData record = newRecord(families::text, all);
      record.textWidgetText = "Words " + std::to_string(i);
      all.push_back(record);
    }
    GroupStore(platform).saveRecords(families::text, all);
    console.reloads = 0;
  }
  void openAt(const char* screen) {
    open({.screen = QString::fromLatin1(screen), .framed = false, .animated = false});
  }
  void type(const QString& words) {
    for (const QChar c : words)
      QTest::keyClick(shell->window(), c.toLatin1());
  }
  /// The colours of the wallpaper are worked out a moment after the page is there.
  void suggest() {
    EXPECT_TRUE(driver->eventually([&] {
      surroundings.pass(1);
      return driver->isShown("swatches");
    }));
  }
  QString text(const char* objectName) {
    return driver->find(objectName)->property("text").toString();
  }
};

TEST_F(FamilyPageTest, style_isMadeFromTheRootFoundAndEdited) {
  setNumber("amountOfConfigs", 1);
  addStyle(0);
  open();
  openFamily("Text");
  driver->click("create");
  waitFor("setupPage");
  driver->click("textField");
  type("Hi there");
  driver->click("stepUp");
  driver->click("toggle");
  driver->click("saveAndContinue");
  ASSERT_EQ(records().size(), 1U);
  EXPECT_EQ(records()[0].textWidgetText, "Hi there");
  EXPECT_EQ(records()[0].textWidgetSize, 19);
  EXPECT_FALSE(records()[0].textWidgetShadow);

  waitFor("colourPage");
  EXPECT_TRUE(driver->isShown("spinner"));
  suggest();
  driver->click("colourWell");
  waitFor("colourChooser");
  driver->find("hexField")->forceActiveFocus();
  driver->key(Qt::Key_A, Qt::ControlModifier);
  type("FF8000");
  driver->click("chooserClose");
  driver->click("saveAndExit");
  EXPECT_EQ(records()[0].textWidgetTextColour.hex(false), "FF8000");
  EXPECT_EQ(number("textSelectedConfig"), 0);
  waitForEndOf("familySheet");

  driver->click("gallery");
  waitFor("tile0");
  driver->click("tile0", Qt::RightButton);
  driver->click("editEntry");
  waitFor("setupPage");
  driver->click("sheetClose");
  waitForEndOf("setupPage");
  EXPECT_TRUE(driver->isShown("galleryPage")) << "the form closes, and not the gallery with it";
  driver->click("tile0", Qt::RightButton);
  driver->click("editEntry");
  waitFor("setupPage");
  EXPECT_EQ(text("textField"), "Hi there");
  EXPECT_EQ(text("stepperWords"), "Size: 19");
  driver->find("textField")->forceActiveFocus();
  type("!");
  driver->click("saveAndContinue");
  waitFor("colourPage");
  suggest();
  driver->click("saveAndExit");
  waitFor("galleryPage");
  waitForEndOf("colourPage");
  EXPECT_EQ(records()[0].textWidgetText, "Hi there!");
  EXPECT_EQ(records()[0].textWidgetTextColour.hex(false), "FF8000");
  driver->click("sheetClose");
  waitForEndOf("familySheet");
}

TEST_F(FamilyPageTest, limits_areTold) {
  openAt("ModernCustomTextView");
  driver->click("preview");
  EXPECT_EQ(text("alertTitle"), "Cannot open Widget Preview");
  driver->key(Qt::Key_Escape);
  driver->click("gallery");
  waitFor("galleryPlaceholder");
  EXPECT_EQ(text("galleryPlaceholder"), "No Text Widget Styles");
  driver->key(Qt::Key_Escape);
  waitForEndOf("familySheet");

  store(12);
  driver->key(Qt::Key_Escape); // to the root and back: the page reads the store when it appears
  openAt("ModernCustomTextView");
  driver->click("create");
  EXPECT_EQ(text("alertTitle"), "Cannot Create Text Widget Style");
  EXPECT_FALSE(driver->isShown("setupPage"));
}

TEST_F(FamilyPageTest, gallery_ticksAndLinksAndRefuses) {
  setNumber("amountOfConfigs", 2);
  addStyle(0);
  addStyle(1);
  store(3);
  openAt("ModernCustomTextGalleryView");
  driver->click("tileTick1");
  EXPECT_EQ(number("textSelectedConfig"), 1);
  EXPECT_EQ(console.reloads, 2) << "the root's and the tick's";
  driver->click("tileTick1");
  EXPECT_EQ(console.reloads, 2);

  driver->click("tile2", Qt::RightButton);
  driver->click("assignEntry");
  waitFor("assignPage");
  EXPECT_EQ(driver->find("assignPage")->property("title"), "Link Time Style");
  EXPECT_EQ(text("rowValue"), "1");
  driver->click("assignPicker");
  driver->click("option2");
  driver->click("saveAndExit");
  waitForEndOf("assignSheet");
  EXPECT_EQ(records()[2].textLinkedConfig, 1);
  EXPECT_EQ(shell->notices().text(), "Saved");
  EXPECT_TRUE(driver->isShown("tileLink2"));
  EXPECT_FALSE(driver->isShown("tileLink0"));
  EXPECT_EQ(accessibleName("tile2"), "Widget Style 3, linked to Vitrelle Style 2");

  driver->click("tile0", Qt::RightButton);
  driver->click("assignEntry");
  waitFor("assignPage");
  driver->click("assignPicker");
  driver->click("option2");
  driver->click("saveAndExit");
  EXPECT_EQ(text("alertMessage"), "This Vitrelle Style already has a Text Style linked to it, "
                                  "please pick another Vitrelle Style.");
  EXPECT_EQ(records()[0].textLinkedConfig, 13);
  driver->key(Qt::Key_Escape);
  EXPECT_TRUE(driver->isShown("assignPage")) << "Escape ends the alert alone";
  driver->click("assignPicker");
  driver->key(Qt::Key_Left, Qt::AltModifier);
  EXPECT_FALSE(driver->isShown("option2"));
  EXPECT_TRUE(driver->isShown("assignPage")) << "the way back is one step";
  driver->key(Qt::Key_Left, Qt::AltModifier);
  waitForEndOf("assignSheet");
  EXPECT_TRUE(driver->isShown("galleryPage"));
}

TEST_F(FamilyPageTest, keys_comeBackToWhereTheyWere) {
  openAt("ModernCustomTextView");
  EXPECT_TRUE(driver->find("create")->hasActiveFocus());
  driver->key(Qt::Key_Tab);
  for (const char* sheet : {"familySheet", "familySheet"}) {
    driver->key(Qt::Key_Return);
    waitFor(sheet);
    driver->key(Qt::Key_Escape);
    waitForEndOf(sheet);
    EXPECT_TRUE(driver->find("gallery")->hasActiveFocus());
  }
}

TEST_F(FamilyPageTest, linkPicker_showsWallpapersAndOpensOnThePresentOne) {
  setNumber("amountOfConfigs", 12);
  for (int style = 0; style < 11; ++style)
    addStyle(style);
  store(1);
  openAt("ModernCustomTextAssignView");
  const auto wallpaperOf = [&](const char* objectName) {
    return driver->find(objectName)->findChild<QQuickItem*>("thumbnail");
  };
  EXPECT_TRUE(
      driver->eventually([&] { return wallpaperOf("assignPicker")->property("ready").toBool(); }));
  EXPECT_EQ(wallpaperOf("assignPicker")->property("styleNumber"), 0);

  const auto isWholeAndFocused = [&](const char* objectName) {
    const QQuickItem* entry = driver->find(objectName);
    const QQuickItem* list = driver->find("menuList");
    const QRectF shown = entry->mapRectToItem(list, entry->boundingRect());
    return entry->hasActiveFocus() && list->boundingRect().contains(shown);
  };
  driver->click("assignPicker");
  EXPECT_TRUE(isWholeAndFocused("option1"));
  EXPECT_FALSE(wallpaperOf("option0")->isVisible()) << "it stands for none";
  EXPECT_EQ(wallpaperOf("option3")->property("styleNumber"), 2);
  EXPECT_EQ(wallpaperOf("option3")->property("dark"), true);
  EXPECT_TRUE(driver->eventually([&] {
    return wallpaperOf("option3")->property("ready").toBool() &&
           wallpaperOf("option12")->property("missing").toBool();
  }));
  for (int i = 0; i < 11; ++i)
    driver->key(Qt::Key_Down);
  EXPECT_TRUE(isWholeAndFocused("option12")) << "what the keys go to is seen";
  driver->key(Qt::Key_Return);
  EXPECT_EQ(text("rowValue"), "12");

  driver->click("assignPicker");
  EXPECT_TRUE(isWholeAndFocused("option12"));
  driver->key(Qt::Key_Up);
  EXPECT_TRUE(isWholeAndFocused("option11"));
}

TEST_F(FamilyPageTest, tab_staysInWhatIsAbove) {
  store(2);
  openAt("ModernCustomTextView");
  const auto isWithin = [&](const char* objectName) {
    const QQuickItem* item = shell->window()->activeFocusItem();
    while (item != nullptr && item->objectName() != QString::fromLatin1(objectName))
      item = item->parentItem();
    return item != nullptr;
  };
  const auto expectWithin = [&](const char* objectName) {
    for (int i = 0; i < 12; ++i) {
      EXPECT_TRUE(isWithin(objectName)) << objectName << " after " << i;
      driver->key(Qt::Key_Tab);
    }
  };
  driver->click("gallery");
  waitFor("tile1");
  expectWithin("familySheet");
  driver->click("tile1", Qt::RightButton);
  expectWithin("tileMenu");
  driver->key(Qt::Key_Escape);
  EXPECT_TRUE(isWithin("tile1")) << "the keys go back to where they were";
}

TEST_F(FamilyPageTest, font_isPickedAndLeftAsItIs) {
  openAt("ModernCustomTextSetupView");
  driver->click("fontRow");
  waitFor("fontPicker");
  type("inter");
  driver->key(Qt::Key_Return);
  waitForEndOf("fontSheet");
  EXPECT_EQ(text("rowValue"), "Inter-Regular");
  driver->click("fontRow");
  waitFor("fontPicker");
  EXPECT_EQ(text("currentFont"), "Inter-Regular");
  driver->key(Qt::Key_Escape);
  waitForEndOf("fontSheet");
  EXPECT_EQ(text("rowValue"), "Inter-Regular");
  EXPECT_TRUE(records().empty());
}

TEST_F(FamilyPageTest, eyedropper_takesTheColourOfAPoint) {
  setNumber("amountOfConfigs", 1);
  addStyle(0);
  store(1);
  openAt("ModernCustomTextColourView");
  suggest();
  driver->click("colourWell");
  driver->click("eyedropperButton");
  waitFor("eyedropper");
  const QQuickItem* exit = driver->find("saveAndExit");
  const QPoint at = exit->mapToScene(QPointF(20, exit->height() / 2)).toPoint();
  QTest::mouseMove(shell->window(), at);
  QTest::mouseClick(shell->window(), Qt::LeftButton, {}, at);
  waitForEndOf("eyedropper");
  driver->key(Qt::Key_Escape);
  driver->click("saveAndExit");
  EXPECT_EQ(records()[0].textWidgetTextColour.hex(false), colours::accent.hex(false));
}

TEST_F(FamilyPageTest, preview_showsEveryWallpaperAndTheWholeScreen) {
  setNumber("amountOfConfigs", 3);
  addStyle(0);
  addStyle(2);
  store(1);
  openAt("ModernCustomTextPreviewView");
  waitFor("wallpaper0");
  driver->key(Qt::Key_Right);
  driver->key(Qt::Key_Right);
  EXPECT_EQ(driver->find("previewPager")->property("currentIndex"), 2);
  driver->click("previewButton");
  waitFor("wholePreview");
  QTest::mouseMove(shell->window(), {100, 100});
  EXPECT_EQ(driver->find("wholePreview")->opacity(), 1) << "nothing shines through";
  driver->key(Qt::Key_Left, Qt::AltModifier);
  EXPECT_FALSE(driver->isShown("wholePreview"));
  EXPECT_TRUE(driver->isShown("previewPage")) << "the way back is one step";
  driver->click("previewButton");
  driver->key(Qt::Key_Escape);
  EXPECT_FALSE(driver->isShown("wholePreview"));
  EXPECT_TRUE(driver->isShown("previewPage"));
}

TEST_F(FamilyPageTest, sheetThatGoesAway_letsNoPressThrough) {
  open({.screen = QStringLiteral("ModernBatteryStylesEditorView"),
        .framed = false,
        .animated = true});
  waitFor("setupPage");
  EXPECT_TRUE(
      driver->eventually([&] { return !driver->find("stack")->property("busy").toBool(); }));
  driver->click("fontRow");
  waitFor("fontPicker");
  const QQuickItem* close = driver->find("fontPickerClose");
  const auto middle = [close] {
    return close->mapToScene(QPointF(close->width() / 2, close->height() / 2)).toPoint();
  };
  const int top = driver->find("sheetClose")->mapToScene(QPointF()).toPoint().y();
  EXPECT_TRUE(driver->eventually([&] { return std::abs(middle().y() - top) < 40; })) << "at rest";
  const QPoint at = middle();
  QTest::mouseClick(shell->window(), Qt::LeftButton, {}, at);
  QTest::mouseClick(shell->window(), Qt::LeftButton, {}, at);
  waitForEndOf("fontSheet");
  EXPECT_TRUE(driver->isShown("setupPage")) << "its own close sign lies beneath";
}

TEST_F(FamilyPageTest, heldEscape_goesOneStep) {
  openAt("ModernTimeView");
  driver->click("create");
  waitFor("kindsPage");
  driver->click("kind1");
  waitFor("setupPage");
  driver->key(Qt::Key_Escape);
  for (int i = 0; i < 5; ++i)
    driver->repeat(Qt::Key_Escape);
  EXPECT_TRUE(driver->isShown("kindsPage"));
}

TEST_F(FamilyPageTest, clock_isMadeFromItsKindToItsPreview) {
  setNumber("amountOfConfigs", 1);
  addStyle(0);
  openAt("ModernTimeView");
  driver->click("create");
  waitFor("kindsPage");
  EXPECT_EQ(accessibleName("kind0"), "Analog Time");
  driver->click("kind0");
  waitFor("setupPage");
  EXPECT_FALSE(driver->isShown("Hour Shape 0"));
  driver->click("Analog Style 2");
  driver->click("Hour Shape 1");
  driver->click("Dial Shape 1");
  driver->find("toggle");
  driver->click("toggle");
  driver->click("Date Length 1");
  driver->click("sheetBack");
  waitFor("kindsPage");
  waitForEndOf("setupPage");
  driver->click("kind2");
  waitFor("setupPage");
  EXPECT_FALSE(driver->isShown("toggle"));
  driver->click("Date Length 1");
  driver->click("stepUp");
  driver->click("saveAndContinue");
  waitFor("colourPage");
  EXPECT_TRUE(driver->isShown("suggestionsHint"));
  suggest();
  driver->click("saveAndExit");
  waitForEndOf("familySheet");
  const auto clocks = GroupStore(platform).loadRecords(families::clock);
  ASSERT_EQ(clocks.size(), 1U);
  EXPECT_EQ(clocks[0],
            (clockWidgetData{.id = 2, .clockWidgetDateLength = 1, .clockWidgetDateSize = 17}));
  driver->click("preview");
  waitFor("wallpaper0");
}

TEST_F(FamilyPageTest, segments_goByKeysAndTheFormKeepsThem) {
  openAt("ModernTimeCreateView");
  waitFor("setupPage");
  driver->click("Analog Style 1");
  QQuickItem* chosen = driver->find("Analog Style 1");
  while (chosen != nullptr && !chosen->property("chosen").isValid())
    chosen = chosen->parentItem();
  ASSERT_NE(chosen, nullptr);
  chosen->forceActiveFocus();
  driver->key(Qt::Key_Right);
  EXPECT_EQ(chosen->property("chosen"), 2);
  EXPECT_TRUE(driver->isShown("Dial Shape 0"));
  EXPECT_TRUE(chosen->hasActiveFocus()) << "rows that stay are not made anew";
  driver->key(Qt::Key_Right);
  driver->key(Qt::Key_Left);
  driver->key(Qt::Key_Left);
  EXPECT_EQ(chosen->property("chosen"), 0);
  EXPECT_FALSE(driver->isShown("Hour Shape 0"));
}

TEST_F(FamilyPageTest, batterySymbol_isPickedOnASheetThatStaysOpen) {
  battery.set(0.4F);
  openAt("ModernBatteryStylesEditorView");
  EXPECT_EQ(accessibleName("symbolRow"), "Symbol iphone");
  driver->click("symbolRow");
  waitFor("symbolPicker");
  driver->key(Qt::Key_Home);
  driver->key(Qt::Key_Return);
  EXPECT_TRUE(driver->isShown("symbolPicker"));
  driver->key(Qt::Key_Escape);
  waitForEndOf("symbolSheet");
  EXPECT_EQ(accessibleName("symbolRow"), "Symbol pencil");
  driver->click("Shape 2");
  EXPECT_FALSE(driver->isShown("symbolRow"));
  EXPECT_FALSE(driver->isShown("fontRow"));
  driver->click("Shape 1");
  EXPECT_EQ(accessibleName("symbolRow"), "Symbol pencil");
  driver->click("saveAndContinue");
  const auto styles = GroupStore(platform).loadRecords(families::battery);
  ASSERT_EQ(styles.size(), 1U);
  EXPECT_EQ(styles[0].batterySymbol, "pencil");
  EXPECT_EQ(styles[0].batteryType, 1);
}

} // namespace
} // namespace vitrelle
