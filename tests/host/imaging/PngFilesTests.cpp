#include "host/imaging/PngFiles.h"

#include "tests/host/imaging/LibpngPeer.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <random>

#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/statvfs.h>

namespace vitrelle::host {
namespace {

namespace fs = std::filesystem;

/// A picture that takes three bytes a pixel.
Image noise(std::int32_t side) {
  std::mt19937 random(17);
  Data pixels;
  for (std::int32_t i = 0; i < side * side; ++i) {
    const auto three = static_cast<std::uint32_t>(random());
    for (const std::uint32_t sample : {three, three >> 8U, three >> 16U, 255U})
      pixels.push_back(static_cast<std::uint8_t>(sample));
  }
  return Image(test::bitmapOf({side, side}, std::move(pixels)));
}

class PngFilesTest : public testing::Test {
 protected:
  ~PngFilesTest() override {
    if (mounted) umount2(folder.c_str(), MNT_DETACH);
    fs::remove_all(folder);
  }

  static fs::path makeTemporary() {
    std::string pattern = (fs::temp_directory_path() / "pictures-XXXXXX").string();
    return mkdtemp(pattern.data());
  }
  std::string path(std::size_t index) const {
    return home.groupFolder() + "/" + std::to_string(index) + ".png";
  }
  /// A big one first, as when a screenshot is cut; a medium one in the midst, then small ones.
  std::vector<PngFile> files() const {
    std::vector<PngFile> list;
    for (const std::int32_t side : {600, 100, 100, 250, 100, 100, 100, 100, 100, 100, 100})
      list.push_back({path(list.size()), noise(side)});
    return list;
  }
  std::string missing(const std::vector<Result<std::size_t>>& results) const {
    std::string text;
    for (std::size_t i = 0; i < results.size(); ++i) {
      EXPECT_EQ(results[i].ok(), fs::exists(path(i))) << i;
      if (!results[i]) text += std::to_string(i) + ": " + results[i].failure().why + "\n";
    }
    return text;
  }

  const fs::path folder = makeTemporary();
  const HomeFolder home{(folder / "home").string()};
  bool mounted = false;
};

TEST_F(PngFilesTest, fullDisk_losesTheBiggest) {
  // The two bigger ones would fit, and then hardly any other.
  mounted = mount("none", folder.c_str(), "tmpfs", 0, "size=1300k") == 0;
  if (!mounted) GTEST_SKIP() << "only root may mount a small disk";
  const auto results = writePngFiles(home, files());
  EXPECT_EQ(missing(results), "0: No space left on device\n");
  EXPECT_TRUE(fs::is_empty(home.pendingFolder()));
}

TEST_F(PngFilesTest, writeThatFails_makesWayForSmallerOnes) {
  std::signal(SIGXFSZ, SIG_IGN);
  rlimit limit{};
  getrlimit(RLIMIT_FSIZE, &limit);
  const rlimit small{.rlim_cur = 100'000, .rlim_max = limit.rlim_max};
  setrlimit(RLIMIT_FSIZE, &small);
  const auto results = writePngFiles(home, files());
  setrlimit(RLIMIT_FSIZE, &limit);
  EXPECT_EQ(missing(results), "0: File too large\n3: File too large\n");
  EXPECT_TRUE(fs::is_empty(home.pendingFolder()));
}

} // namespace
} // namespace vitrelle::host
