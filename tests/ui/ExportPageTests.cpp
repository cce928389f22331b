#include "tests/ui/UiTest.h"

#include "core/slicing/WidgetLocation.h"
#include "host/imaging/ImageFile.h"

#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QTemporaryDir>
#include <QUrl>

namespace vitrelle {
namespace {

QByteArray bytesOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Over slices in a real folder.
class ExportPageTest : public test::UiTest {
 protected:
  ExportPageTest() {
    platform.files.groupContainer = [this] { return std::optional(slices.path().toStdString()); };
    platform.files.fileExists = [](const std::string& path) {
      return QFile::exists(QString::fromStdString(path));
    };
    platform.images.load = host::loadImageFile;
    defaults.values(Suite::standard)["saveFolder"] = target.path().toStdString();
  }
  ~ExportPageTest() override {
    driver.reset();
    shell.reset(); // reads the folders until then
    qputenv("PATH", path);
  }

  void addStyles(std::int64_t amount) {
    setNumber("amountOfConfigs", amount);
    int colour = 0;
    for (std::int64_t style = 0; style < amount; ++style) {
      for (const WidgetLocationImageNames slot : allWidgetLocations()) {
        for (const InterfaceStyle appearance : {lightStyle, darkStyle}) {
          QImage picture(60, 60, QImage::Format_RGB32);
          picture.fill(QColor(++colour % 256, 80, 160));
          const auto name = sliceFileName({style}, rawValue(slot), appearance);
          EXPECT_TRUE(picture.save(slices.filePath(QString::fromStdString(name)), "PNG"));
        }
      }
    }
  }
  void openPage() {
    open({.screen = QStringLiteral("ModernImageExportView"), .framed = false, .animated = false});
    ASSERT_TRUE(driver->isShown("exportPage"));
  }
  void openSheet(const char* slot) {
    driver->click(slot);
    ASSERT_TRUE(driver->eventually([&] { return driver->isShown("shareSheet"); }));
  }
  QVariant property(const char* objectName, const char* name) {
    return driver->find(objectName)->property(name);
  }
  QVariant sliceOf(const char* slot, const char* name) {
    return driver->find(slot)->findChild<QQuickItem*>("slice")->property(name);
  }
  void type(const char* words) {
    for (const char* letter = words; *letter != 0; ++letter)
      QTest::keyClick(shell->window(), *letter);
  }
  /// Puts a program of this name in the place of all others.
  void provide(const char* name, const QByteArray& script) {
    QFile file(programs.filePath(QString::fromLatin1(name)));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(script) > 0);
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    qputenv("PATH", QFile::encodeName(programs.path()));
  }

  QTemporaryDir slices;
  QTemporaryDir target;
  QTemporaryDir programs;
  QByteArray path = qgetenv("PATH");
};

TEST_F(ExportPageTest, choosers_changeWhatTheyAreForAndNothingElse) {
  addStyles(3);
  openPage();
  EXPECT_TRUE(driver->isShown("bottomRightSmall"));
  EXPECT_FALSE(driver->isShown("topMedium"));
  EXPECT_EQ(accessibleName("midLeftSmall"), "Middle left");
  driver->click("style2");
  driver->click("appearance1");
  EXPECT_EQ(sliceOf("topLeftSmall", "styleNumber"), 2);
  EXPECT_EQ(sliceOf("topLeftSmall", "dark"), true);
  driver->click("size2");
  EXPECT_TRUE(driver->isShown("bottomLarge"));
  EXPECT_FALSE(driver->isShown("topLeftSmall"));
  EXPECT_EQ(sliceOf("topLarge", "styleNumber"), 2);
  EXPECT_EQ(sliceOf("topLarge", "dark"), true);
  EXPECT_DOUBLE_EQ(property("topLarge", "width").toDouble(), 393 - 60);

  driver->find("size")->forceActiveFocus();
  driver->key(Qt::Key_Left);
  driver->key(Qt::Key_Left);
  driver->key(Qt::Key_Left);
  EXPECT_EQ(accessibleName("size"), "Widget Size, Small");
  driver->find("styles")->forceActiveFocus();
  driver->key(Qt::Key_Left);
  EXPECT_EQ(accessibleName("styles"), "Select a Vitrelle Style, 2");
  EXPECT_EQ(sliceOf("topLeftSmall", "styleNumber"), 1);
}

TEST_F(ExportPageTest, copy_hasTheStoredBytesInEveryForm) {
  addStyles(3);
  openPage();
  driver->click("style2");
  driver->click("appearance1");
  driver->find("topLeftSmall")->forceActiveFocus();
  driver->key(Qt::Key_Right);
  driver->key(Qt::Key_Left);
  driver->key(Qt::Key_Return);
  ASSERT_TRUE(driver->eventually([&] { return driver->isShown("shareSheet"); }));
  EXPECT_EQ(property("shareName", "text"), "2topLeftSmallDark.png");
  EXPECT_TRUE(property("shareFacts", "text").toString().startsWith("60 × 60 pixels, "));
  EXPECT_TRUE(driver->find("saveAs")->hasActiveFocus());
  const QByteArray stored = bytesOf(slices.filePath("2topLeftSmallDark.png"));
  for (const bool byKeys : {false, true}) {
    QGuiApplication::clipboard()->clear();
    if (byKeys)
      driver->key(Qt::Key_C, Qt::ControlModifier);
    else
      driver->click("copy");
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    EXPECT_EQ(data->data("image/png"), stored);
    EXPECT_TRUE(data->hasImage());
    ASSERT_EQ(data->urls().size(), 1);
    EXPECT_EQ(data->urls().constFirst().fileName(), "2topLeftSmallDark.png");
    EXPECT_EQ(bytesOf(data->urls().constFirst().toLocalFile()), stored);
    EXPECT_TRUE(driver->isShown("notice"));
  }
  const QString copy = QGuiApplication::clipboard()->mimeData()->urls().constFirst().toLocalFile();
  driver->key(Qt::Key_Escape);
  waitForEndOf("shareSheet");
  EXPECT_TRUE(driver->find("topLeftSmall")->hasActiveFocus());
  driver->key(Qt::Key_Escape);
  waitForEndOf("exportPage");
  EXPECT_TRUE(QFile::exists(copy)) << "the clipboard still names it";
  driver.reset();
  shell.reset();
  EXPECT_FALSE(QFile::exists(copy));
  EXPECT_FALSE(QDir(QFileInfo(copy).path()).exists());
}

TEST_F(ExportPageTest, saving_writesTheFileAndRemembersTheFolder) {
  addStyles(1);
  const QDir root(target.path());
  ASSERT_TRUE(root.mkpath("Slices"));
  openPage();
  openSheet("midRightSmall");
  const QByteArray stored = bytesOf(slices.filePath("0midRightSmall.png"));
  driver->click("saveAs");
  ASSERT_TRUE(driver->eventually([&] { return driver->isShown("saveRow0"); }));
  EXPECT_TRUE(driver->find("textField")->hasActiveFocus());
  driver->click("saveRow0");
  driver->find("textField")->forceActiveFocus();
  driver->key(Qt::Key_A, Qt::ControlModifier);
  type("a b.png");
  driver->key(Qt::Key_Return);
  waitForEndOf("savePage");
  EXPECT_EQ(bytesOf(root.filePath("Slices/a b.png")), stored);
  EXPECT_EQ(property("notice", "name"), "Saved as a b.png");
  EXPECT_EQ(std::get<std::string>(defaults.values(Suite::standard)["saveFolder"]),
            root.filePath("Slices").toStdString());
  EXPECT_TRUE(driver->find("saveAs")->hasActiveFocus());

  driver->key(Qt::Key_S, Qt::ControlModifier);
  ASSERT_TRUE(driver->eventually([&] { return driver->isShown("saveRow0"); }));
  EXPECT_EQ(property("saveRow0", "fileName"), "a b.png") << "where the last one went";
  driver->click("saveRow0");
  EXPECT_EQ(property("textField", "text"), "a b.png");
  QFile changed(root.filePath("Slices/a b.png"));
  ASSERT_TRUE(changed.open(QIODevice::WriteOnly) && changed.write("mine") > 0);
  changed.close();
  driver->click("saveButton");
  ASSERT_TRUE(driver->isShown("replaceQuestion"));
  driver->key(Qt::Key_Return);
  waitForEndOf("replaceQuestion");
  EXPECT_EQ(bytesOf(changed.fileName()), "mine") << "the first answer is to leave it";
  driver->click("saveButton");
  driver->key(Qt::Key_Escape);
  waitForEndOf("replaceQuestion");
  ASSERT_TRUE(driver->isShown("savePage"));
  driver->click("saveButton");
  driver->key(Qt::Key_Down);
  driver->key(Qt::Key_Return);
  waitForEndOf("savePage");
  EXPECT_EQ(bytesOf(changed.fileName()), stored);
}

TEST_F(ExportPageTest, whatCannotBeSaved_isToldAndAnotherPlaceCanBeChosen) {
  addStyles(1);
  const QDir root(target.path());
  ASSERT_TRUE(root.mkpath("folder.png"));
  openPage();
  openSheet("topLeftSmall");
  driver->click("saveAs");
  ASSERT_TRUE(driver->eventually([&] { return driver->isShown("savePage"); }));
  driver->key(Qt::Key_A, Qt::ControlModifier);
  driver->key(Qt::Key_Delete);
  EXPECT_FALSE(driver->find("saveButton")->isEnabled()) << "without a name";
  type("folder.png");
  driver->key(Qt::Key_Return);
  EXPECT_FALSE(driver->isShown("replaceQuestion")) << "it is a folder, and gone into";
  EXPECT_EQ(property("step0", "name"), "Computer");
  driver->key(Qt::Key_A, Qt::ControlModifier);
  type(std::string(300, 'a').c_str());
  driver->key(Qt::Key_Return);
  EXPECT_TRUE(property("notice", "name").toString().contains(" can’t be saved. "));
  ASSERT_TRUE(driver->isShown("savePage"));
  driver->key(Qt::Key_Escape);
  waitForEndOf("savePage");
  EXPECT_TRUE(driver->isShown("shareSheet"));
  EXPECT_EQ(root.entryList(QDir::NoDotAndDotDot | QDir::AllEntries), QStringList{"folder.png"});
  EXPECT_TRUE(QDir(root.filePath("folder.png")).isEmpty());
}

TEST_F(ExportPageTest, otherPrograms_getACopyAndAreMissedInWords) {
  addStyles(1);
  openPage();
  openSheet("topLeftSmall");
  qputenv("PATH", QFile::encodeName(programs.path()));
  driver->click("openWith");
  EXPECT_TRUE(driver->eventually([&] { return driver->isShown("notice"); }));
  EXPECT_TRUE(property("notice", "name").toString().startsWith("xdg-open, "));
  shell->notices().dismiss();

  provide("xdg-open", "#!/bin/sh\nexit 3\n");
  driver->click("openWith");
  EXPECT_TRUE(
      driver->eventually([&] { return shell->notices().text() == qtTrId("app.share.noProgram"); }));
  shell->notices().dismiss();

  const QString seen = target.filePath("seen");
  provide("xdg-open", "#!/bin/sh\necho \"$1\" > '" + seen.toUtf8() + ".new'\n/bin/mv '" +
                          seen.toUtf8() + ".new' '" + seen.toUtf8() + "'\n");
  driver->click("openWith");
  ASSERT_TRUE(driver->eventually([&] { return QFile::exists(seen); }));
  const QString copy = QString::fromUtf8(bytesOf(seen)).trimmed();
  EXPECT_TRUE(copy.endsWith("/0topLeftSmall.png")) << copy.toStdString();
  EXPECT_EQ(bytesOf(copy), bytesOf(slices.filePath("0topLeftSmall.png")));
  QTest::qWait(20);
  EXPECT_EQ(shell->notices().text(), "");
}

TEST_F(ExportPageTest, nothingToExport_isSaid) {
  setNumber("amountOfConfigs", 0);
  openPage();
  EXPECT_TRUE(driver->isShown("noStyles"));
  EXPECT_FALSE(driver->isShown("exportHint"));
  ASSERT_TRUE(platform.defaults.remove(Suite::group, "amountOfConfigs"));
  EXPECT_TRUE(driver->isShown("noStyles"));
  addStyles(1);
  ASSERT_TRUE(platform.defaults.set(Suite::group, "amountOfConfigs", std::int64_t{1}));
  EXPECT_FALSE(driver->isShown("noStyles")) << "another process made one";
  platform.images.load = [this](const std::string&) { return Result<Image>(screenshot); };
  openSheet("topLeftSmall");
  EXPECT_TRUE(driver->isShown("nothingToShare")) << "its file can't be read";
  EXPECT_FALSE(driver->isShown("copy"));
  driver->key(Qt::Key_Escape);
  waitForEndOf("shareSheet");
}

} // namespace
} // namespace vitrelle
