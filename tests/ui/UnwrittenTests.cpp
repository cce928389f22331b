// Drawing a picture of a screen leaves no trace in the home.
#include "ui/Unwritten.h"

#include "host/Host.h"
#include "host/desktop/QtLoop.h"
#include "host/drawing/DrawingProcess.h"
#include "tests/ui/UiTest.h"

#include <gtest/gtest.h>

#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace vitrelle {
namespace {

/// What lies in the folder: the path and the time of each file and folder, and what is in it.
QStringList contents(const QString& folder) {
  QStringList all;
  for (QDirIterator files(folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                          QDirIterator::Subdirectories);
       files.hasNext();) {
    QFile file(files.next());
    const QFileInfo info(file.fileName());
    QByteArray bytes;
    if (info.isFile() && file.open(QIODevice::ReadOnly)) bytes = file.readAll();
    all += info.filePath() + info.lastModified().toString(Qt::ISODateWithMs) +
           QString::number(qHash(bytes));
  }
  all.sort();
  return all;
}

class UnwrittenTest : public testing::Test {
 protected:
  UnwrittenTest() { qputenv("XDG_RUNTIME_DIR", folder.path().toUtf8()); }
  QString home() const { return folder.filePath(QStringLiteral("home")); }
  Platform platform() const {
    Platform platform = host::makePlatform(
        {.home = host::HomeFolder(home().toStdString()), .phone = {}, .verbose = false},
        host::makeQtLoop());
    host::useDrawing(platform);
    return platform;
  }
  /// As the first generation left it, with styles and widget styles of this one besides.
  void fill() const {
    const Platform writing = platform();
    ASSERT_TRUE(writing.defaults.set(Suite::standard, "last_used_app_version", std::string("1.9")));
    ASSERT_TRUE(writing.defaults.set(Suite::group, "amountOfConfigs", std::int64_t{1}));
    const Image picture = test::positionImage(1179, 2556);
    std::vector<PngFile> files;
    for (const char* name : {"original", "originalDark", "0original", "0originalDark"})
      files.push_back({*writing.files.groupContainer() + "/" + name + ".png", picture});
    for (const auto& written : writing.images.writePngFiles(files))
      ASSERT_TRUE(written);
  }
  void drawEveryScreen() const {
    for (const QString& name : ui::Shell::screenNames()) {
      const Platform kept = ui::withNothingWritten(platform());
      ui::Shell shell(kept, {.screen = name, .framed = false, .animated = false});
      ASSERT_TRUE(shell.open()) << name.toStdString();
      shell.window()->grabWindow();
      EXPECT_EQ(kept.defaults.value(Suite::standard, "last_used_app_version").value(),
                StoreValue(*kept.bundle.shortVersion()))
          << "the screen is one of after the launch";
    }
  }
  static int draw(const QStringList& arguments) {
    QProcess process;
    process.start(QString::fromLocal8Bit(VITRELLE_APP), arguments);
    return process.waitForFinished(60000) ? process.exitCode() : -1;
  }

  const QTemporaryDir folder;
};

TEST_F(UnwrittenTest, newHome_isNotMade) {
  drawEveryScreen();
  EXPECT_FALSE(QFile::exists(home()));
  EXPECT_EQ(draw({"--home", home(), "--screenshot", folder.filePath("a.png")}), 0);
  EXPECT_FALSE(QFile::exists(home()));
}

TEST_F(UnwrittenTest, homeOfTheFirstGeneration_staysAsItIs) {
  fill();
  const QStringList before = contents(home());
  ASSERT_GT(before.size(), 5);
  drawEveryScreen();
  EXPECT_EQ(contents(home()), before);
  EXPECT_EQ(draw({"--home", home(), "--screen", "ModernNewLightDark", "--screenshot",
                  folder.filePath("a.png")}),
            0);
  EXPECT_EQ(contents(home()), before);
}

TEST_F(UnwrittenTest, writes_areReadAgain) {
  const Platform kept = ui::withNothingWritten(platform());
  std::vector<std::int64_t> seen;
  const auto watching = kept.defaults.watch(Suite::group, "a", [&](const auto& value) {
    seen.push_back(value ? std::get<std::int64_t>(*value) : -1);
  });
  ASSERT_TRUE(kept.defaults.set(Suite::group, "a", std::int64_t{3}));
  EXPECT_EQ(kept.defaults.keys(Suite::group).value(), std::vector<std::string>{"a"});
  EXPECT_TRUE(kept.defaults.keys(Suite::standard).value().empty());
  ASSERT_TRUE(kept.defaults.remove(Suite::group, "a"));
  EXPECT_EQ(seen, (std::vector<std::int64_t>{-1, 3, -1}));
  const std::string path = *kept.files.groupContainer() + "/a.png";
  const Image picture = test::positionImage(4, 4);
  ASSERT_TRUE(kept.images.writePngFiles(std::vector<PngFile>{{path, picture}})[0]);
  EXPECT_TRUE(kept.files.fileExists(path));
  EXPECT_EQ(kept.images.load(path).value(), picture);
}

} // namespace
} // namespace vitrelle
