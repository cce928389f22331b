#include "host/files/HomeLock.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include <sys/stat.h>

namespace vitrelle::host {
namespace {

namespace fs = std::filesystem;

class HomeLockTest : public testing::Test {
 protected:
  ~HomeLockTest() override { fs::remove_all(folder); }
  static fs::path makeTemporary() {
    std::string pattern = (fs::temp_directory_path() / "lock-XXXXXX").string();
    return mkdtemp(pattern.data());
  }
  const fs::path folder = makeTemporary();
  const HomeFolder home{(folder / "new" / "home").string()};
};

TEST_F(HomeLockTest, lock_keepsOthersOutUntilItsLastCopyIsGone) {
  Result<HomeLock> first = lockHome(home, 0);
  ASSERT_TRUE(first);
  HomeLock copy = *first;
  first = Failure{"test", "let go"};
  const auto second = lockHome(home, 0.01);
  ASSERT_FALSE(second);
  EXPECT_EQ(second.failure().what, home.path());
  copy.reset();
  EXPECT_TRUE(lockHome(home, 0));
}

TEST_F(HomeLockTest, fileThatIsNoFile_isRefusedAndNotWaitedFor) {
  fs::create_directories(home.path());
  ASSERT_EQ(mkfifo(home.lockFile().c_str(), 0600), 0);
  EXPECT_EQ(lockHome(home, 0).failure().why, "it is no regular file");
  fs::remove_all(home.path());
  std::ofstream(home.path()) << "a file where a folder should be";
  EXPECT_FALSE(lockHome(home, 0));
}

} // namespace
} // namespace vitrelle::host
