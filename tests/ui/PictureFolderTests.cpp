#include "ui/pickers/PictureFolder.h"

#include <QAbstractItemModelTester>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <ctime>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vitrelle::ui {
namespace {

class PictureFolderTest : public testing::Test {
 protected:
  QString at(const QString& name) const { return root.filePath(name); }
  /// A file that was changed so many seconds after another time.
  void write(const QString& name, time_t seconds) const {
    QFile file(at(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("x");
    file.close();
    const timespec times[] = {{1000000 + seconds, 0}, {1000000 + seconds, 0}};
    EXPECT_EQ(utimensat(AT_FDCWD, QFile::encodeName(at(name)).constData(), times, 0), 0);
  }
  QStringList names() {
    QStringList all;
    for (const FolderEntry& entry : folder.rows()->entries())
      all += entry.name;
    return all;
  }
  bool becomes(const QStringList& expected) {
    return QTest::qWaitFor([&] { return names() == expected; }, 10000);
  }
  bool becomes(FolderState expected) {
    return QTest::qWaitFor([&] { return folder.state() == expected; }, 10000);
  }

  QTemporaryDir root;
  PictureFolder folder;
  QAbstractItemModelTester tester{folder.rows(),
                                  QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(PictureFolderTest, entries_areFoldersByNameThenPicturesByTime) {
  for (const char* name : {"b", "A", ".hidden"})
    QDir(root.path()).mkdir(QString::fromLatin1(name));
  write("old.png", 1);
  write("new.JPG", 3);
  write("mid.heic", 2);
  write("same b.heif", 2);
  write("same a.jpeg", 2);
  write(".hidden.png", 4);
  write("notes.txt", 5);
  QFile::link(at("nothing.png"), at("dangling.png"));
  EXPECT_EQ(folder.state(), FolderState::loading);
  folder.show(root.path());
  EXPECT_TRUE(becomes({"A", "b", "new.JPG", "mid.heic", "same a.jpeg", "same b.heif", "old.png"}))
      << names().join(", ").toStdString();
  EXPECT_EQ(folder.state(), FolderState::ready);

  EXPECT_EQ(folder.find("SAME", 0), 4);
  EXPECT_EQ(folder.find("same", 5), 5);
  EXPECT_EQ(folder.find("a", 3), 0) << "from the top again";
  EXPECT_EQ(folder.find("x", 0), -1);
}

TEST_F(PictureFolderTest, changes_areFollowed) {
  for (int i = 0; i < 6; ++i)
    write(QString::number(i) + ".png", i);
  folder.show(root.path());
  EXPECT_TRUE(becomes({"5.png", "4.png", "3.png", "2.png", "1.png", "0.png"}));
  const QPersistentModelIndex stays = folder.rows()->index(2);

  QFile::remove(at("5.png"));
  QFile::remove(at("2.png"));
  QFile::remove(at("1.png"));
  write("a.png", 9);
  write("b.png", 1);
  QDir(root.path()).mkdir("in");
  EXPECT_TRUE(becomes({"in", "a.png", "4.png", "3.png", "b.png", "0.png"}))
      << names().join(", ").toStdString();
  EXPECT_EQ(stays.row(), 3) << "what stays is not made anew";

  // Writing into a file is told by nobody, and goes on after the file was made.
  const auto revision = [&] {
    const PictureRows& rows = *folder.rows();
    return rows.data(rows.index(1), rows.roleNames().key("revision")).toInt();
  };
  const int before = revision();
  QFile grows(at("a.png"));
  EXPECT_TRUE(grows.open(QIODevice::Append) && grows.write("more") > 0 && grows.flush());
  EXPECT_TRUE(QTest::qWaitFor([&] { return revision() != before; }));

  QDir(root.path()).removeRecursively();
  EXPECT_TRUE(becomes(FolderState::gone));
  EXPECT_TRUE(names().isEmpty());
  QDir().mkpath(root.path());
  write("back.png", 1);
  EXPECT_TRUE(becomes({"back.png"}));
  EXPECT_EQ(folder.state(), FolderState::ready);
}

TEST_F(PictureFolderTest, whatIsNoReadableFolder_isSaid) {
  write("file.png", 1);
  folder.show(at("file.png"));
  EXPECT_TRUE(becomes(FolderState::unreadable));
  folder.show(at("nothing"));
  EXPECT_TRUE(becomes(FolderState::gone));

  QDir(root.path()).mkdir("closed");
  chmod(QFile::encodeName(at("closed")).constData(), 0);
  if (geteuid() == 0) return; // whom nothing is closed to
  folder.show(at("closed"));
  EXPECT_TRUE(becomes(FolderState::unreadable));
}

TEST_F(PictureFolderTest, trail_leadsFromTheRootOverTheHome) {
  EXPECT_TRUE(folder.trail().isEmpty());
  folder.show(QStringLiteral("/usr/share/../lib/"));
  EXPECT_EQ(folder.trail(), (QStringList{"/", "/usr", "/usr/lib"}));
  folder.show(PictureFolder::home() + "/Pictures/Trip");
  EXPECT_EQ(folder.trail(),
            (QStringList{"/", PictureFolder::home(), PictureFolder::home() + "/Pictures",
                         PictureFolder::home() + "/Pictures/Trip"}));
  EXPECT_EQ(folder.nameIn(PictureFolder::home()), "Pictures");
  EXPECT_EQ(folder.nameIn(PictureFolder::home() + "/Pictures/Trip"), "");
  EXPECT_EQ(folder.nameIn(PictureFolder::home() + "/Pic"), "");
  folder.show(QStringLiteral("/usr/lib"));
  EXPECT_EQ(folder.nameIn("/"), "usr");
  EXPECT_EQ(folder.above(), "/usr");
  folder.show(QStringLiteral("/"));
  EXPECT_EQ(folder.above(), "");
  EXPECT_EQ(folder.trail(), QStringList{"/"});

  EXPECT_EQ(firstPictureFolder(root.path()), root.path());
  EXPECT_NE(firstPictureFolder(at("nothing")), at("nothing"));
}

} // namespace
} // namespace vitrelle::ui
