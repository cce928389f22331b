#include "tests/ui/UiTest.h"
#include "ui/slicing/IntakeScreen.h"

#include "host/imaging/ImageFile.h"

#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QTemporaryDir>

#include <string>
#include <tuple>

namespace vitrelle {
namespace {

class IntakePageTest : public test::UiTest {
 protected:
  IntakePageTest() {
    QImage picture(1179, 2556, QImage::Format_RGB32);
    picture.fill(Qt::darkCyan);
    QGuiApplication::clipboard()->setImage(picture);
  }
  ui::IntakeScreen* intake() const {
    return driver->find("intakePage")->property("intake").value<ui::IntakeScreen*>();
  }
  void paste(const char* cell) {
    driver->find(cell)->forceActiveFocus();
    driver->key(Qt::Key_V, Qt::ControlModifier);
  }
};

TEST_F(IntakePageTest, newStyle_isPastedListedAndChanged) {
  setNumber("amountOfConfigs", 0);
  open();
  driver->click("createCard");
  ASSERT_TRUE(driver->isShown("intakePage"));
  paste("lightCell");
  EXPECT_EQ(number("amountOfConfigs"), 1);
  EXPECT_EQ(folder.written.size(), 12U);
  paste("darkCell");
  EXPECT_EQ(folder.written.size(), 24U);
  EXPECT_TRUE(folder.images.contains("0originalDark.png"));
  driver->click("back");
  EXPECT_TRUE(driver->eventually([&] { return !driver->isShown("intakePage"); }));
  EXPECT_EQ(number("amountOfConfigs"), 1);
  ASSERT_TRUE(driver->isShown("tick0"));

  driver->click("edit0");
  ASSERT_TRUE(driver->isShown("intakePage"));
  paste("darkCell");
  EXPECT_EQ(folder.written.size(), 36U);
  EXPECT_EQ(folder.written.back(), "0bottomLargeDark.png");
}

TEST_F(IntakePageTest, pressingAHalf_opensThePickerAndCancellingItHarmsNothing) {
  setNumber("amountOfConfigs", 0);
  open();
  driver->click("createCard");
  driver->click("darkCell");
  const auto picking = [&] {
    const auto* intake = driver->find("intakePage")->property("intake").value<QObject*>();
    return intake->property("pickerOpen").toBool();
  };
  EXPECT_TRUE(picking());
  EXPECT_EQ(number("amountOfConfigs"), 1);
  EXPECT_TRUE(driver->isShown("picturePicker"));
  driver->key(Qt::Key_Escape);
  EXPECT_TRUE(driver->eventually([&] { return !picking(); }));
  EXPECT_TRUE(folder.written.empty());
  EXPECT_EQ(console.reloads, 2) << "the launch's and the cancelled picker's";
}

TEST_F(IntakePageTest, picker_findsAPictureByKeysAndRemembersItsFolder) {
  QTemporaryDir pictures;
  const QDir root(pictures.path());
  ASSERT_TRUE(root.mkpath("Phone/Empty"));
  QImage picture(300, 600, QImage::Format_RGB32);
  picture.fill(Qt::darkRed);
  picture.save(root.filePath("Phone/Screenshot 1.png"));
  picture.save(root.filePath("Phone/Screenshot 2.png"));
  QFile damaged(root.filePath("Phone/Broken.png"));
  ASSERT_TRUE(damaged.open(QIODevice::WriteOnly) && damaged.write("no picture") > 0);
  damaged.close();
  platform.images.load = host::loadImageFile;
  defaults.values(Suite::standard)["pictureFolder"] = pictures.path().toStdString();
  setNumber("amountOfConfigs", 1);
  addStyle(0);
  open({.screen = QStringLiteral("ModernChangeLightDark"), .framed = false, .animated = false});
  driver->click("darkCell");
  const auto type = [&](const char* words) {
    for (const char* letter = words; *letter != 0; ++letter)
      QTest::keyClick(shell->window(), *letter);
  };
  const auto isAt = [&](const char* name) {
    const QQuickItem* item = shell->window()->activeFocusItem();
    return item != nullptr && item->property("fileName").toString() == QString::fromLatin1(name);
  };
  ASSERT_TRUE(driver->eventually([&] { return isAt("Phone"); }));
  driver->key(Qt::Key_Return);
  ASSERT_TRUE(driver->eventually([&] { return isAt("Empty"); }));
  driver->key(Qt::Key_Return);
  EXPECT_TRUE(driver->eventually([&] {
    return driver->isShown("pickerMessage") &&
           driver->find("pickerMessage")->property("text") == qtTrId("app.picker.empty");
  }));
  driver->key(Qt::Key_Backspace);
  EXPECT_TRUE(driver->eventually([&] { return isAt("Empty"); }));
  driver->key(Qt::Key_Up, Qt::AltModifier);
  EXPECT_TRUE(driver->eventually([&] { return isAt("Phone"); }));
  driver->key(Qt::Key_Return);
  EXPECT_TRUE(driver->eventually([&] { return isAt("Empty"); }));

  const auto thumbnail = [&](const char* cell) {
    return driver->find(cell)->findChild<QQuickItem*>("picture");
  };
  EXPECT_TRUE(driver->eventually([&] { return thumbnail("cell3")->property("ready").toBool(); }));
  EXPECT_TRUE(thumbnail("cell1")->property("missing").toBool());
  EXPECT_TRUE(driver->find("cell1")->findChild<QQuickItem*>("sign")->isVisible());
  type("broken");
  EXPECT_TRUE(isAt("Broken.png"));
  driver->key(Qt::Key_Return);
  EXPECT_TRUE(driver->isShown("notice")) << "a damaged one is told of";
  EXPECT_TRUE(driver->eventually([&] { return !driver->isShown("pickerSheet"); }));
  EXPECT_TRUE(folder.written.empty());

  driver->click("darkCell");
  ASSERT_TRUE(driver->eventually([&] { return isAt("Empty"); })) << "where the last one was";
  type("screenshot 2");
  EXPECT_TRUE(isAt("Screenshot 2.png"));
  driver->key(Qt::Key_Return);
  ASSERT_FALSE(folder.written.empty());
  EXPECT_EQ(folder.written.front(), "0originalDark.png");
  EXPECT_TRUE(driver->eventually([&] { return !driver->isShown("pickerSheet"); }));
  EXPECT_EQ(std::get<std::string>(defaults.values(Suite::standard)["pictureFolder"]),
            root.filePath("Phone").toStdString());
}

TEST_F(IntakePageTest, press_choosesTheHalfInWhichItEnds) {
  phone.bounds = {390, 844}; // its half is a whole number
  setNumber("amountOfConfigs", 1);
  addStyle(0);
  folder.images.insert_or_assign("picked.png", screenshot);
  const std::tuple<int, int, const char*> cases[] = {{60, 300, "0originalDark.png"},
                                                     {300, 60, "0original.png"},
                                                     {300, 194, "0original.png"},
                                                     {60, 195, "0originalDark.png"},
                                                     {195, 195, "0originalDark.png"}};
  for (const auto& [from, to, written] : cases) {
    SCOPED_TRACE(std::to_string(from) + " to " + std::to_string(to));
    open({.screen = QStringLiteral("ModernChangeLightDark"), .framed = false, .animated = false});
    folder.written.clear();
    driver->drag({from, 400}, to - from);
    auto* intake = driver->find("intakePage")->property("intake").value<ui::IntakeScreen*>();
    ASSERT_TRUE(intake->isPickerOpen());
    intake->pick(QUrl::fromLocalFile(QStringLiteral("/group/picked.png")));
    ASSERT_FALSE(folder.written.empty());
    EXPECT_EQ(folder.written.front(), written);
  }
}

TEST_F(IntakePageTest, halfAStyle_isTakenBackOnLeaving) {
  setNumber("amountOfConfigs", 0);
  open();
  driver->click("createCard");
  paste("lightCell");
  EXPECT_EQ(number("amountOfConfigs"), 1);
  driver->key(Qt::Key_Escape);
  EXPECT_TRUE(driver->eventually([&] { return !driver->isShown("intakePage"); }));
  EXPECT_EQ(number("amountOfConfigs"), 0);
  EXPECT_FALSE(driver->isShown("tick0"));
}

TEST_F(IntakePageTest, endOfTheProgram_leavesThePage) {
  for (const bool both : {false, true}) {
    setNumber("amountOfConfigs", 0);
    folder.images.clear();
    open();
    driver->click("createCard");
    paste("lightCell");
    if (both) paste("darkCell");
    shell->window()->hide(); // as at a tap on a widget, which is no end
    EXPECT_EQ(number("amountOfConfigs"), 1);
    driver.reset();
    shell.reset();
    EXPECT_EQ(number("amountOfConfigs"), both ? 1 : 0);
  }
}

TEST_F(IntakePageTest, suddenEnd_isPutRightByTheNextStart) {
  setNumber("amountOfConfigs", 1);
  defaults.values(Suite::standard)["styleInTheMaking"] = std::int64_t{0};
  addOriginal(0, lightStyle);
  open();
  EXPECT_EQ(number("amountOfConfigs"), 0);
  EXPECT_EQ(shell->root()->pageCount(), 1);
}

TEST_F(IntakePageTest, whatIsNoPicture_isToldAndChangesNothing) {
  setNumber("amountOfConfigs", 1);
  addStyle(0);
  open({.screen = QStringLiteral("ModernChangeLightDark"), .framed = false, .animated = false});
  auto* data = new QMimeData;
  data->setUrls({QUrl::fromLocalFile(QStringLiteral("/group/nothing.png"))});
  QGuiApplication::clipboard()->setMimeData(data);
  paste("lightCell");
  EXPECT_TRUE(driver->isShown("notice"));
  EXPECT_TRUE(folder.written.empty());
  driver->click("notice");
  EXPECT_TRUE(driver->eventually([&] { return !driver->isShown("notice"); }));
}

TEST_F(IntakePageTest, helpSheets_openByTheirState) {
  setNumber("amountOfConfigs", 1);
  open({.screen = QStringLiteral("ModernChangeLightDark"), .framed = false, .animated = false});
  driver->click("darkCell", Qt::RightButton);
  driver->click("helpEntry");
  ASSERT_TRUE(driver->isShown("perspectiveZoom"));
  driver->key(Qt::Key_Escape);
  EXPECT_TRUE(driver->eventually([&] { return !driver->isShown("intakeSheet"); }));
  EXPECT_TRUE(driver->isShown("intakePage")) << "the way back is one step";
  EXPECT_TRUE(driver->find("darkCell")->hasActiveFocus());

  intake()->screen().present(ActiveSheet::settings);
  EXPECT_TRUE(driver->isShown("widgetSettingsPage"));
  driver->key(Qt::Key_Escape);
  EXPECT_TRUE(driver->eventually([&] { return !driver->isShown("intakeSheet"); }));
  intake()->screen().present(ActiveSheet::invalid);
  EXPECT_FALSE(driver->isShown("intakeSheet")) << "no sheet shows a screen that is not there";
  EXPECT_TRUE(folder.written.empty());
}

TEST_F(IntakePageTest, newStyle_isThePageThatOneComesBackTo) {
  setNumber("amountOfConfigs", 2);
  addStyle(0);
  addStyle(1);
  open();
  driver->key(Qt::Key_V, Qt::ControlModifier); // on the root
  ASSERT_TRUE(driver->isShown("intakePage"));
  EXPECT_EQ(driver->find("styleName")->property("text"), "Vitrelle Style 3");
  EXPECT_TRUE(folder.images.contains("2original.png"));
  EXPECT_TRUE(driver->find("darkCell")->hasActiveFocus()) << "what will be used next";
  driver->key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_TRUE(folder.images.contains("2originalDark.png"));
  driver->key(Qt::Key_Escape);
  EXPECT_TRUE(driver->eventually([&] { return !driver->isShown("intakePage"); }));
  EXPECT_EQ(shell->root()->page(), 2);
  EXPECT_TRUE(driver->find("shownPage")->hasActiveFocus());
}

TEST_F(IntakePageTest, pasteThatCannotBeStored_isTold) {
  setNumber("amountOfConfigs", 0);
  open();
  const auto others = platform.files.lock(0);
  ASSERT_TRUE(others);
  driver->key(Qt::Key_V, Qt::ControlModifier);
  ASSERT_TRUE(driver->isShown("intakePage"));
  EXPECT_NE(shell->notices().text(), "");
  EXPECT_TRUE(folder.written.empty());
}

TEST_F(IntakePageTest, keys_beginAtTheHalfThatIsMissing) {
  setNumber("amountOfConfigs", 0);
  open();
  driver->key(Qt::Key_Return);
  ASSERT_TRUE(driver->isShown("intakePage"));
  EXPECT_TRUE(driver->find("lightCell")->hasActiveFocus());
  EXPECT_EQ(accessibleName("lightCell"), "Light Mode, No Image Set, Tap to Change");
  driver->key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(accessibleName("lightCell"), "Light Mode, picture set, Tap to Change");
  driver->key(Qt::Key_Escape);
  EXPECT_TRUE(driver->eventually([&] { return !driver->isShown("intakePage"); }));
  driver->key(Qt::Key_Return);
  EXPECT_TRUE(driver->find("darkCell")->hasActiveFocus()) << "the light file stayed";
}

TEST_F(IntakePageTest, files_goToTheHalvesThatTheirNamesTell) {
  setNumber("amountOfConfigs", 1);
  open({.screen = QStringLiteral("ModernChangeLightDark"), .framed = false, .animated = false});
  platform.images.load = [this](const std::string& path) -> Result<Image> {
    if (path == "/bad") return Failure{path, "damaged"};
    return screenshot;
  };
  const auto written = [&](const QList<QUrl>& files) {
    folder.written.clear();
    intake()->takeFiles(files);
    std::vector<std::string> originals;
    for (const std::string& name : folder.written) {
      if (name.find("original") != std::string::npos) originals.push_back(name);
    }
    return originals;
  };
  using Names = std::vector<std::string>;
  const QUrl light(QStringLiteral("file:///a.png"));
  const QUrl dark(QStringLiteral("file:///my-Dark.png"));
  EXPECT_EQ(written({light}), Names{"0original.png"});
  EXPECT_EQ(written({dark}), Names{"0originalDark.png"});
  EXPECT_EQ(written({dark, light}), (Names{"0originalDark.png", "0original.png"}));
  EXPECT_EQ(written({light, light}), (Names{"0original.png", "0originalDark.png"}));
  EXPECT_EQ(written({light, dark, light}), Names{});
  EXPECT_NE(shell->notices().text(), "") << "none is chosen by chance";
  EXPECT_EQ(written({QUrl(QStringLiteral("file:///bad")), light}), Names{});
  EXPECT_NE(shell->notices().text(), "") << "the refusal stays to be read";
  EXPECT_EQ(written({light}), Names{"0original.png"});
  EXPECT_EQ(shell->notices().text(), "") << "a good picture takes it back";
}

TEST_F(IntakePageTest, rightClick_opensAMenu) {
  setNumber("amountOfConfigs", 1);
  open({.screen = QStringLiteral("ModernChangeLightDark"), .framed = false, .animated = false});
  driver->click("darkCell", Qt::RightButton);
  ASSERT_TRUE(driver->isShown("pasteEntry"));
  driver->click("pasteEntry");
  EXPECT_FALSE(driver->isShown("pasteEntry"));
  EXPECT_EQ(folder.written.size(), 12U);
  EXPECT_EQ(folder.written.front(), "0originalDark.png");
}

} // namespace
} // namespace vitrelle
