// The settings of the phone, what a change does to the pages that are open, and the question about
// another phone's screenshot, in the real pages.
#include "tests/ui/UiTest.h"

#include "host/imaging/ImageFile.h"
#include "host/phone/PhoneModels.h"
#include "ui/slicing/IntakeScreen.h"

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QTemporaryDir>

namespace vitrelle {
namespace {

class PhonePageTest : public test::UiTest {
 protected:
  PhonePageTest() {
    phone.models = host::phoneModels();
    setNumber("amountOfConfigs", 2);
    addStyle(0);
    addStyle(1);
  }
  void openAt(const char* screen) {
    open({.screen = QString::fromLatin1(screen), .framed = false, .animated = false});
    QTest::qWait(20);
  }
  void type(const char* words) {
    for (const char* c = words; *c != '\0'; ++c) {
      QTest::qSleep(2);
      QTest::keyClick(shell->window(), *c);
    }
  }
  void tabTo(const char* objectName) {
    for (int i = 0; i < 12 && !driver->find(objectName)->hasActiveFocus(); ++i)
      driver->key(Qt::Key_Tab);
    EXPECT_TRUE(driver->find(objectName)->hasActiveFocus()) << objectName;
  }
  int depth() { return driver->find("stack")->property("depth").toInt(); }
  QString text(const char* objectName) {
    return driver->find(objectName)->property("text").toString();
  }
  bool isChecked(const char* objectName) {
    return QAccessible::queryAccessibleInterface(driver->find(objectName))->state().checked;
  }
  /// As another program or a page would.
  void stand(const char* identifier, AppearanceChoice appearance = AppearanceChoice::desktop) {
    ASSERT_TRUE(platform.phoneBook.save(
        {.identifier = identifier, .os = phone.choice.os, .appearance = appearance}));
    QTest::qWait(20);
  }
  ui::IntakeScreen* intake() {
    return driver->find("intakePage")->property("intake").value<ui::IntakeScreen*>();
  }
  void beginWithoutStyles() {
    setNumber("amountOfConfigs", 0);
    folder.images.clear();
  }
  static void copy(int width, int height) {
    QImage picture(width, height, QImage::Format_RGB32);
    picture.fill(Qt::darkCyan);
    QGuiApplication::clipboard()->setImage(picture);
  }
  /// A screenshot of an iPhone 11.
  QUrl save(const char* name) {
    QImage picture(828, 1792, QImage::Format_RGB32);
    picture.fill(Qt::darkCyan);
    const QString path = pictures.filePath(QString::fromLatin1(name));
    EXPECT_TRUE(picture.save(path));
    platform.images.load = [stored = platform.images.load](const std::string& file) {
      return file.starts_with("/group") ? stored(file) : host::loadImageFile(file);
    };
    return QUrl::fromLocalFile(path);
  }

  QTemporaryDir pictures;
};

TEST_F(PhonePageTest, settings_openOnceFromAnywhere) {
  openAt("ModernWidgetCentre");
  driver->key(Qt::Key_Comma, Qt::ControlModifier);
  waitFor("phoneSettingsPage");
  driver->key(Qt::Key_Comma, Qt::ControlModifier);
  EXPECT_EQ(depth(), 3);
  tabTo("locationRow");
  driver->key(Qt::Key_Return);
  waitFor("locationSettingsPage");
  driver->key(Qt::Key_Comma, Qt::ControlModifier);
  EXPECT_EQ(depth(), 3) << "it is gone back to";
  waitForEndOf("locationSettingsPage");
  driver->key(Qt::Key_Escape);
  waitFor("widgetCentrePage");
}

TEST_F(PhonePageTest, menu_opensByKeysAndPointer) {
  open();
  driver->key(Qt::Key_F10);
  ASSERT_TRUE(driver->isShown("windowMenu"));
  EXPECT_EQ(accessibleName("phoneSettingsEntry"), "Phone Settings …");
  driver->key(Qt::Key_Escape);
  EXPECT_FALSE(driver->isShown("windowMenu"));
  EXPECT_TRUE(driver->find("shownPage")->hasActiveFocus());
  driver->key(Qt::Key_Menu);
  ASSERT_TRUE(driver->isShown("windowMenu"));
  driver->key(Qt::Key_Escape);
  QTest::mouseClick(shell->window(), Qt::RightButton, {}, QPoint(6, 300));
  ASSERT_TRUE(driver->isShown("windowMenu"));
  driver->key(Qt::Key_Return);
  waitFor("phoneSettingsPage");
}

TEST_F(PhonePageTest, phone_isFoundAndPickedByKeys) {
  openAt("PhoneSettingsView");
  EXPECT_EQ(accessibleName("phoneRow"), "iPhone 15 Pro");
  EXPECT_TRUE(driver->find("phoneRow")->hasActiveFocus());
  driver->key(Qt::Key_Return);
  waitFor("phone iPhone 15 Pro");
  EXPECT_TRUE(driver->find("phone iPhone 15 Pro")->hasActiveFocus()) << "the chosen one is in view";
  EXPECT_TRUE(isChecked("phone iPhone 15 Pro"));
  driver->key(Qt::Key_Down);
  EXPECT_TRUE(driver->find("phone iPhone 15 Plus")->hasActiveFocus());
  driver->key(Qt::Key_End);
  EXPECT_TRUE(driver->find("phone iPhone 4")->hasActiveFocus());
  EXPECT_EQ(driver->find("phone iPhone 4")->property("note"), "No measurements, so no slots");
  driver->key(Qt::Key_Home);
  driver->key(Qt::Key_Down);
  EXPECT_TRUE(driver->find("phone iPhone 16")->hasActiveFocus());
  EXPECT_FALSE(isChecked("phone iPhone 16"));
  type("xyz");
  EXPECT_TRUE(driver->isShown("phoneUnknown"));
  driver->key(Qt::Key_Return);
  EXPECT_TRUE(driver->isShown("phoneList")) << "there is nothing to pick";
  driver->key(Qt::Key_A, Qt::ControlModifier);
  type("se 3");
  EXPECT_EQ(driver->find("phoneList")->property("count"), 1);
  driver->key(Qt::Key_Return);
  waitForEndOf("phoneSheet");
  EXPECT_EQ(accessibleName("phoneRow"), "iPhone SE (3rd generation)");
  EXPECT_EQ(phone.choice.identifier, "iPhone14,6");
  EXPECT_EQ(shell->window()->size(), QSize(375, 667)) << "the window is that phone's at once";
}

TEST_F(PhonePageTest, otherSettings_holdAtOnceAndTellWhereTheyCannotBeKept) {
  openAt("PhoneSettingsView");
  EXPECT_TRUE(isChecked("from18"));
  driver->click("before18");
  EXPECT_EQ(phone.choice.os, (OsVersion{17, 0, 0}));
  EXPECT_TRUE(isChecked("before18"));
  driver->click("zoomRow");
  EXPECT_TRUE(phone.choice.zoomed);
  EXPECT_EQ(shell->window()->width(), 320);
  driver->click("appearance1");
  EXPECT_FALSE(shell->surroundings().isDark());
  EXPECT_FALSE(driver->isShown("phoneTrouble"));
  phone.full = true;
  driver->click("appearance2");
  EXPECT_TRUE(shell->surroundings().isDark());
  EXPECT_TRUE(text("phoneTrouble").contains("the disk is full"));
  phone.full = false;
  stand("iPhone8,4");
  EXPECT_FALSE(driver->isShown("zoomRow")) << "it can't";
  stand("iFridge9,9");
  EXPECT_EQ(accessibleName("phoneRow"), "iFridge9,9");
  EXPECT_EQ(text("phoneMeasured"), "No measurements, so no slots");
}

TEST_F(PhonePageTest, root_followsThePhoneAndKeepsItsPage) {
  open();
  driver->key(Qt::Key_Right);
  EXPECT_EQ(shell->root()->page(), 1);
  stand("iPhone14,6");
  EXPECT_EQ(shell->window()->size(), QSize(375, 667));
  EXPECT_EQ(shell->root()->page(), 1);
  EXPECT_EQ(shell->root()->pageWidth(), 250);
  const QQuickItem* tick = driver->find("tick1");
  EXPECT_EQ(tick->parentItem()->width(), 250);
  const QQuickItem* pages = driver->find("pages");
  const QQuickItem* shown = driver->find("shownPage");
  EXPECT_NEAR(pages->x() + shown->x() + shown->width() / 2, 187.5, 0.01) << "in the middle";
  stand("iPhone16,2");
  EXPECT_EQ(shell->window()->size(), QSize(430, 932));
  EXPECT_NEAR(pages->x() + shown->x() + shown->width() / 2, 215, 0.01);
}

TEST_F(PhonePageTest, framedWindow_keepsItsHeight) {
  open({.screen = {}, .framed = true, .animated = false});
  shell->window()->resize(300, 500);
  QTest::qWait(20);
  stand("iPhone8,4");
  EXPECT_EQ(shell->window()->height(), 500);
  EXPECT_NEAR(shell->window()->width(), 500.0 * 348 / 596, 1);
}

TEST_F(PhonePageTest, openPages_followThePhoneAndTheAppearance) {
  for (const InterfaceStyle style : {lightStyle, darkStyle})
    folder.images.insert_or_assign(sliceFileName({0}, "topMedium", style), screenshot);
  open();
  openFamily("Text");
  driver->click("create");
  waitFor("setupPage");
  const QQuickItem* preview = driver->find("previewBackdrop");
  EXPECT_EQ(preview->width(), 333);
  driver->find("textField")->forceActiveFocus();
  type("hello");
  stand("iPhone8,4", AppearanceChoice::light);
  EXPECT_EQ(preview->width(), 260);
  EXPECT_EQ(preview->height(), 128);
  EXPECT_EQ(driver->find("textField")->property("text"), "hello") << "nothing typed is lost";
  const QQuickItem* slice = driver->find("slice");
  EXPECT_FALSE(slice->property("dark").toBool());
  stand("iPhone16,1", AppearanceChoice::dark);
  EXPECT_TRUE(slice->property("dark").toBool());
  EXPECT_EQ(preview->width(), 333);
  driver->click("saveAndContinue");
  waitFor("colourPage");
  driver->click("saveAndExit");
  waitForEndOf("familySheet");
  driver->click("gallery");
  waitFor("tile0");
  stand("iPhone8,4");
  EXPECT_EQ(driver->find("tile0")->width(), 128);
  EXPECT_EQ(driver->find("tile0")->height(), 128);
}

TEST_F(PhonePageTest, foreignScreenshot_isAskedAboutAndCutForThePhoneThatIsPicked) {
  beginWithoutStyles();
  copy(750, 1334);
  open();
  driver->key(Qt::Key_V, Qt::ControlModifier);
  waitFor("screenshotOriginPage");
  EXPECT_TRUE(folder.written.empty());
  EXPECT_TRUE(text("foreignWords").contains(u"750\u00A0×\u00A01334"));
  EXPECT_TRUE(text("foreignWords").contains("iPhone 15 Pro"));
  EXPECT_EQ(accessibleName("origin0"), "iPhone SE (3rd generation)");
  EXPECT_EQ(driver->find("origin0")->property("note"),
            "or iPhone SE (2nd generation), iPhone 7, iPhone 6s, iPhone 6");
  EXPECT_TRUE(driver->eventually([&] { return driver->find("origin0")->hasActiveFocus(); }));
  driver->key(Qt::Key_Return);
  waitForEndOf("questionSheet");
  EXPECT_EQ(phone.choice.identifier, "iPhone14,6");
  ASSERT_EQ(folder.written.size(), 12U);
  EXPECT_EQ(folder.images.at("0topLeftSmall.png").size(), (PixelSize{296, 296}));
  EXPECT_FALSE(driver->isShown("picturePicker"));
  EXPECT_TRUE(driver->eventually([&] { return driver->find("darkCell")->hasActiveFocus(); }))
      << "which is missing";
  driver->key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(folder.written.size(), 24U) << "it is this phone's own now";
}

TEST_F(PhonePageTest, foreignScreenshot_canBeKeptOrCancelled) {
  beginWithoutStyles();
  copy(640, 1136);
  openAt("ModernNewLightDark");
  intake()->paste(true);
  waitFor("screenshotOriginPage");
  driver->key(Qt::Key_Escape);
  waitForEndOf("questionSheet");
  EXPECT_TRUE(folder.written.empty());
  EXPECT_FALSE(intake()->isPickerOpen());
  intake()->paste(true);
  waitFor("keepPhone");
  driver->click("keepPhone");
  waitForEndOf("questionSheet");
  EXPECT_EQ(phone.choice.identifier, "iPhone16,1");
  EXPECT_TRUE(folder.images.contains("0originalDark.png"));

  intake()->paste(false);
  waitFor("screenshotOriginPage");
  phone.full = true;
  driver->click("origin0");
  EXPECT_TRUE(shell->notices().text().contains("the disk is full"));
  EXPECT_EQ(folder.images.at("0topLeftSmall.png").size(), (PixelSize{282, 282}));
}

TEST_F(PhonePageTest, foreignFileFromThePicker_isAskedAboutByKeys) {
  beginWithoutStyles();
  const QUrl file = save("a.png");
  openAt("ModernNewLightDark");
  driver->click("lightCell");
  waitFor("picturePicker");
  intake()->pick(file);
  waitFor("origin0");
  waitForEndOf("picturePicker");
  driver->key(Qt::Key_Return);
  waitForEndOf("questionSheet");
  EXPECT_EQ(folder.images.at("0topLeftSmall.png").size(), (PixelSize{338, 338}));
  EXPECT_TRUE(driver->eventually([&] { return driver->find("darkCell")->hasActiveFocus(); }));
}

TEST_F(PhonePageTest, twoForeignFiles_areAskedAboutOnce) {
  beginWithoutStyles();
  const QList<QUrl> files = {save("a.png"), save("a-dark.png")};
  openAt("ModernNewLightDark");
  intake()->takeFiles(files);
  waitFor("origin0");
  EXPECT_EQ(accessibleName("origin0"), "iPhone 11");
  driver->click("origin0");
  waitForEndOf("questionSheet");
  EXPECT_EQ(folder.written.size(), 24U);
  EXPECT_EQ(folder.images.at("0topLeftSmallDark.png").size(), (PixelSize{338, 338}));
  EXPECT_EQ(number("amountOfConfigs"), 1);
}

} // namespace
} // namespace vitrelle
