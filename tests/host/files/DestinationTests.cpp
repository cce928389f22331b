#include "tests/host/files/FilesTest.h"

#include "host/files/PendingFile.h"

#include <csignal>
#include <thread>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

namespace vitrelle::host {
namespace {

namespace fs = std::filesystem;

class DestinationTest : public FilesTest {
 protected:
  static unsigned modeOf(const std::string& path) {
    struct stat status {};
    return lstat(path.c_str(), &status) == 0 ? status.st_mode & 07777 : 0;
  }
  /// All that lies in the folder, and its own folders.
  std::size_t entries() const {
    return static_cast<std::size_t>(std::distance(fs::recursive_directory_iterator(folder),
                                                  fs::recursive_directory_iterator()));
  }
  std::string whyNot(const std::string& path) const {
    const Status status = replaceFile(home, path, bytes);
    return status ? "" : status.failure().why;
  }
};

TEST_F(DestinationTest, umask_isObeyedEverywhereButInTheHome) {
  const mode_t before = umask(027);
  EXPECT_TRUE(replaceFile(home, outside("made/there/a.png"), bytes));
  EXPECT_TRUE(replaceFile(home, inGroup("a.png"), bytes));
  umask(before);
  EXPECT_EQ(modeOf(outside("made")), 0750U);
  EXPECT_EQ(modeOf(outside("made/there/a.png")), 0640U);
  EXPECT_EQ(modeOf(home.groupFolder()), 0700U);
  EXPECT_EQ(modeOf(inGroup("a.png")), 0600U);
}

TEST_F(DestinationTest, links_leadToTheFileThatIsReplaced) {
  fs::create_directory(outside("far"));
  std::ofstream(outside("far/old")) << "old";
  ASSERT_EQ(chmod(outside("far/old").c_str(), 0604), 0);
  fs::create_symlink("old", outside("far/link"));
  fs::create_symlink("far/link", outside("chain"));
  fs::create_symlink("far/new", outside("dangling"));
  fs::create_symlink("round", outside("round"));
  EXPECT_TRUE(replaceFile(home, outside("chain"), bytes));
  EXPECT_TRUE(replaceFile(home, outside("dangling"), bytes));
  for (const char* link : {"chain", "dangling", "far/link"})
    EXPECT_TRUE(fs::is_symlink(outside(link))) << link;
  EXPECT_EQ(contents(outside("far/old")), bytes);
  EXPECT_EQ(contents(outside("far/new")), bytes);
  EXPECT_EQ(modeOf(outside("far/old")), 0604U) << "whoever could read it still can";
  EXPECT_NE(whyNot(outside("round")), "");
}

TEST_F(DestinationTest, failedWrite_leavesTheOldFileAndNothingElse) {
  std::ofstream(outside("a.png")) << "old";
  const std::size_t before = entries();
  std::signal(SIGXFSZ, SIG_IGN);
  rlimit limit{};
  getrlimit(RLIMIT_FSIZE, &limit);
  const rlimit small{.rlim_cur = bytes.size() / 2, .rlim_max = limit.rlim_max};
  setrlimit(RLIMIT_FSIZE, &small);
  EXPECT_NE(whyNot(outside("a.png")), "");
  setrlimit(RLIMIT_FSIZE, &limit);
  EXPECT_EQ(contents(outside("a.png")), (Data{'o', 'l', 'd'}));
  EXPECT_EQ(entries(), before);
}

TEST_F(DestinationTest, whatIsNoFile_isRefusedOrWrittenToButNeverReplaced) {
  fs::create_directories(home.groupFolder());
  const int listener = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  outside("socket").copy(address.sun_path, sizeof address.sun_path - 1);
  ASSERT_EQ(bind(listener, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
  fs::create_directory(outside("folder"));
  ASSERT_EQ(mkfifo(outside("pipe").c_str(), 0600), 0);
  ASSERT_EQ(mkfifo(inGroup("0original.png").c_str(), 0600), 0);
  // A device that no fault of ours could remove.
  const int terminal = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
  ASSERT_TRUE(grantpt(terminal) == 0 && unlockpt(terminal) == 0);
  fs::create_symlink(ptsname(terminal), outside("terminal"));
  const std::size_t before = entries();

  EXPECT_EQ(whyNot(outside("folder")), "Is a directory");
  EXPECT_EQ(whyNot(outside("pipe")), "nobody reads from it");
  EXPECT_NE(whyNot(outside("socket")), "");
  EXPECT_EQ(whyNot(inGroup("0original.png")), "it is no regular file");
  EXPECT_EQ(whyNot(outside("terminal")), "it is a terminal");
  EXPECT_TRUE(fs::is_symlink(outside("terminal")));
  close(terminal);
  close(listener);

  const int reader = open(outside("pipe").c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  EXPECT_EQ(whyNot(outside("pipe")), "");
  Data read(2 * bytes.size());
  EXPECT_EQ(::read(reader, read.data(), read.size()), static_cast<ssize_t>(bytes.size()));
  close(reader);
  EXPECT_EQ(entries(), before);
}

} // namespace
} // namespace vitrelle::host
