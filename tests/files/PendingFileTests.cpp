#include "host/files/PendingFile.h"

#include "core/platform/Data.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <thread>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace vitrelle::host {
namespace {

namespace fs = std::filesystem;

class PendingFileTest : public testing::Test {
 protected:
  ~PendingFileTest() override { fs::remove_all(folder); }

  static fs::path makeTemporary() {
    // In memory where that can be: a race that a disk slows down is never lost.
    const fs::path root = access("/dev/shm", W_OK) == 0 ? "/dev/shm" : fs::temp_directory_path();
    std::string pattern = (root / "files-XXXXXX").string();
    return mkdtemp(pattern.data());
  }
  std::string inGroup(const std::string& name) const { return home.groupFolder() + "/" + name; }
  std::size_t waiting() const {
    std::size_t count = 0;
    for (const auto& entry : fs::directory_iterator(home.pendingFolder()))
      count += entry.is_regular_file() ? 1 : 0;
    return count;
  }

  const fs::path folder = makeTemporary();
  const HomeFolder home{(folder / "home").string()};
  const Data bytes = Data(3000, 7);
};

TEST_F(PendingFileTest, clearingUp_sparesTheLivingWhateverTheClockSays) {
  Result<PendingFile> pending = PendingFile::write(home, inGroup("a.png"), bytes);
  ASSERT_TRUE(pending);
  for (const auto& entry : fs::directory_iterator(home.pendingFolder())) {
    const timespec longAgo[2] = {{.tv_sec = 1, .tv_nsec = 0}, {.tv_sec = 1, .tv_nsec = 0}};
    ASSERT_EQ(utimensat(AT_FDCWD, entry.path().c_str(), longAgo, 0), 0);
  }
  removeAbandonedFiles(home);
  PendingFile file = *std::move(pending);
  EXPECT_TRUE(file.moveIntoPlace());
  EXPECT_EQ(fs::file_size(inGroup("a.png")), bytes.size());
}

TEST_F(PendingFileTest, clearingUp_takesWhatTheDeadLeftAndNothingElse) {
  const pid_t child = fork();
  if (child == 0) {
    const auto left = PendingFile::write(home, inGroup("a.png"), bytes);
    _exit(left ? 0 : 1);
  }
  int status = 0;
  waitpid(child, &status, 0);
  ASSERT_EQ(status, 0);
  ASSERT_EQ(waiting(), 1U);
  const fs::path others = home.pendingFolder();
  fs::create_directory(others / "store.abcdef");
  std::ofstream(others / "store.abcdef" / "new.sqlite") << "being made";
  ASSERT_EQ(mkfifo((others / "pipe").c_str(), 0600), 0);
  removeAbandonedFiles(home);
  EXPECT_EQ(waiting(), 0U);
  EXPECT_TRUE(fs::exists(others / "store.abcdef" / "new.sqlite"));
  EXPECT_TRUE(fs::exists(others / "pipe"));
}

TEST_F(PendingFileTest, clearingUpAllTheTime_losesNothing) {
  const std::jthread clearing([&](const std::stop_token& done) {
    while (!done.stop_requested())
      removeAbandonedFiles(home);
  });
  for (int i = 0; i < 20'000; ++i) {
    Result<PendingFile> pending = PendingFile::write(home, inGroup("a.png"), bytes);
    ASSERT_TRUE(pending) << i;
    ASSERT_TRUE((*std::move(pending)).moveIntoPlace()) << i;
  }
}

} // namespace
} // namespace vitrelle::host
