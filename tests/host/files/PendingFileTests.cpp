#include "tests/host/files/FilesTest.h"

#include "host/files/PendingFile.h"

#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>

namespace vitrelle::host {
namespace {

namespace fs = std::filesystem;

class PendingFileTest : public FilesTest {
 protected:
  std::size_t waiting() const {
    std::size_t count = 0;
    for (const auto& entry : fs::directory_iterator(home.pendingFolder()))
      count += entry.is_regular_file() ? 1 : 0;
    return count;
  }
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
  {
    const Descriptor maker(open((others / "store.abcdef").c_str(), O_RDONLY | O_DIRECTORY));
    ASSERT_EQ(flock(maker.get(), LOCK_EX), 0);
    removeAbandonedFiles(home);
  }
  EXPECT_EQ(waiting(), 0U);
  EXPECT_TRUE(fs::exists(others / "store.abcdef" / "new.sqlite"));
  EXPECT_TRUE(fs::exists(others / "pipe"));
  removeAbandonedFiles(home);
  EXPECT_FALSE(fs::exists(others / "store.abcdef")) << "its maker is gone";
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
