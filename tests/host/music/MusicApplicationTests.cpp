#include "host/music/MusicApplication.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace vitrelle::host {
namespace {

class MusicApplicationTest : public testing::Test {
 protected:
  MusicApplicationTest() {
    EXPECT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("data/applications")));
    EXPECT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("settings")));
  }
  void write(const char* name, const QByteArray& lines) const {
    QFile file(folder.filePath(QLatin1String(name)));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(lines) == lines.size());
  }
  void describe(const char* name, const QByteArray& lines) const {
    write((QByteArray("data/applications/") + name + ".desktop").constData(),
          "[Desktop Entry]\n" + lines + "\n");
  }
  std::string command() const {
    const auto words = musicCommand({.settings = {folder.filePath(QStringLiteral("settings"))},
                                     .data = {folder.filePath(QStringLiteral("data"))}});
    return words ? words->join(QLatin1Char('|')).toStdString() : "none";
  }

  QTemporaryDir folder;
};

TEST_F(MusicApplicationTest, chosenOne_comesBeforeThoseThatWould) {
  EXPECT_EQ(command(), "none");
  describe("able", "Exec=sh --able %U");
  write("data/applications/mimeinfo.cache",
        "[MIME Cache]\naudio/flac=gone.desktop;able.desktop;\n");
  EXPECT_EQ(command(), "sh|--able");
  describe("chosen", "Exec=sh \"my player\" 100%% %f\nExec=never\n[Desktop Action]\nExec=no");
  write("settings/mimeapps.list", "[Added Associations]\naudio/mpeg=able.desktop\n"
                                  "[Default Applications]\n# mine\naudio/mpeg = chosen.desktop\n");
  EXPECT_EQ(command(), "sh|my player|100%");
}

TEST_F(MusicApplicationTest, whatCannotBeStarted_isPassedOver) {
  describe("hidden", "Exec=sh\nHidden=true");
  describe("lines", "Exec=sh\nTerminal=true");
  describe("uninstalled", "Exec=/no/such/program");
  describe("empty", "Name=Nothing");
  write("data/secret.desktop", "[Desktop Entry]\nExec=sh");
  write("settings/mimeapps.list",
        "[Default Applications]\naudio/mpeg=hidden.desktop;lines.desktop;uninstalled.desktop;"
        "empty.desktop;../secret.desktop;;\n=\n[\n");
  EXPECT_EQ(command(), "none");
}

} // namespace
} // namespace vitrelle::host
