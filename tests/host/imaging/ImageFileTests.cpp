#include "host/imaging/ImageFile.h"

#include "host/files/PendingFile.h"
#include "tests/host/imaging/LibpngPeer.h"
#include "tests/support/Fakes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string_view>

#include <sys/stat.h>

namespace vitrelle::host {
namespace {

namespace fs = std::filesystem;

class ImageFileTest : public testing::Test {
 protected:
  ImageFileTest() {
    std::string pattern = (fs::temp_directory_path() / "imagesXXXXXX").string();
    folder = mkdtemp(pattern.data());
  }
  ~ImageFileTest() override { fs::remove_all(folder); }

  std::string write(const std::string& name, const Data& bytes) const {
    const std::string path = (folder / name).string();
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
    return path;
  }
  std::string whyNot(const std::string& path) const {
    const auto image = loadImageFile(path);
    if (!image) return image.failure().why;
    const auto bitmap = image->bitmap();
    return bitmap ? "loaded" : bitmap.failure().why;
  }

  fs::path folder;
};

TEST_F(ImageFileTest, whatIsNoPicture_isRefusedInWords) {
  EXPECT_EQ(whyNot((folder / "none.png").string()), "No such file or directory");
  EXPECT_EQ(whyNot(folder.string()), "not a file");
  EXPECT_EQ(whyNot(write("empty.png", {})), "the file is empty");
  EXPECT_EQ(whyNot(write("text.png", Data(100, 'x'))), "not a PNG, JPEG or HEIC picture");
  EXPECT_EQ(whyNot(write("short.png", Data{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n', 0})),
            "the file ends in its header");
  EXPECT_EQ(whyNot(write("cut.heic", Data{0, 0, 0, 24, 'f', 't', 'y', 'p', 'h', 'e', 'i', 'c'}))
                .substr(0, 22),
            "the picture is damaged");
  const std::string pipe = (folder / "pipe").string();
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_EQ(whyNot(pipe), "not a file");
}

TEST_F(ImageFileTest, replacedFile_isStillTheOldPicture) {
  const std::string path = write("a.png", test::writeWithLibpng(30, 20, {}));
  const auto image = loadImageFile(path);
  ASSERT_TRUE(image);
  fs::rename(write("b.png", test::writeWithLibpng(5, 5, {})), path);
  EXPECT_EQ(image->size(), (PixelSize{30, 20}));
  EXPECT_EQ(image->bitmap().value().size, (PixelSize{30, 20}));
}

TEST_F(ImageFileTest, unchangedFile_isTheSamePictureAndIsNotOpenedAgain) {
  const auto openFiles = [] {
    return std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator());
  };
  const Images images = makeImages(HomeFolder((folder / "home").string()));
  const Data bytes = test::writeWithLibpng(30, 20, {});
  const std::string path = write("a.png", bytes);
  const Image first = images.load(path).value();
  const auto open = openFiles();
  const Image again = images.load(path).value();
  EXPECT_EQ(openFiles(), open);
  EXPECT_EQ(again, first);
  EXPECT_NE(again.bitmap()->pixels, first.bitmap()->pixels) << "each holds pixels of its own";
  EXPECT_FALSE(first == images.load(write("b.png", bytes)).value()) << "another file";

  write("a.png", test::writeWithLibpng(30, 20, {8, PNG_COLOR_TYPE_RGB}));
  const Image rewritten = images.load(path).value();
  EXPECT_FALSE(rewritten == first);
  fs::rename(folder / "b.png", path);
  const Image replaced = images.load(path).value();
  EXPECT_FALSE(replaced == rewritten);
  fs::last_write_time(path, fs::last_write_time(path) + std::chrono::nanoseconds(1));
  EXPECT_FALSE(images.load(path).value() == replaced);
  fs::remove(path);
  EXPECT_FALSE(images.load(path));
}

TEST_F(ImageFileTest, fileThatShrinksAfterItsHeaderWasRead_isRefused) {
  const std::string path = write("a.png", test::writeWithLibpng(300, 200, {}));
  const auto image = loadImageFile(path);
  ASSERT_TRUE(image);
  fs::resize_file(path, 200);
  const auto bitmap = image->bitmap();
  ASSERT_FALSE(bitmap);
  EXPECT_EQ(bitmap.failure().what, path);
}

/// HEIC files made by libheif's own tool.
class HeicFileTest : public ImageFileTest {
 protected:
  void SetUp() override {
    if (std::system("command -v heif-enc >/dev/null 2>&1") != 0) GTEST_SKIP() << "no heif-enc";
  }
  /// The bytes of the picture as HEIC.
  Data heic(const std::string& source) const {
    const std::string path = (folder / "made.heic").string();
    const std::string command = "heif-enc -q 90 " + source + " -o " + path + " >/dev/null 2>&1";
    EXPECT_EQ(std::system(command.c_str()), 0);
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
};

TEST_F(HeicFileTest, oddSidesAndRotation_leaveThePictureAsItIsStored) {
  for (const auto& [width, height] : {std::pair(117U, 55U), std::pair(1179U, 2556U)}) {
    const std::string source =
        write("odd.png", test::writeWithLibpng(width, height, {8, PNG_COLOR_TYPE_RGB}));
    Data bytes = heic(source);
    const auto straight = loadImageFile(write("straight.heic", bytes));
    // The property that tells the depth of the samples becomes one that turns by a quarter.
    constexpr std::string_view depthName = "pixi";
    const auto depth = std::search(bytes.begin(), bytes.end(), depthName.begin(), depthName.end());
    ASSERT_NE(depth, bytes.end());
    std::ranges::copy(std::string_view("irot\1"), depth);
    const auto rotated = loadImageFile(write("rotated.heic", bytes));
    const Data want = test::packedPixels(loadImageFile(source).value().bitmap().value());
    for (const auto& image : {straight, rotated}) {
      ASSERT_TRUE(image) << image.failure().why;
      EXPECT_EQ(image->size(), (PixelSize{static_cast<int>(width), static_cast<int>(height)}));
      const Data got = test::packedPixels(image->bitmap().value());
      ASSERT_EQ(got.size(), want.size());
      double difference = 0;
      for (std::size_t i = 0; i < got.size(); ++i)
        difference += std::abs(got[i] - want[i]);
      EXPECT_LT(difference / static_cast<double>(got.size()), 12) << "lossy, but the same picture";
    }
  }
}

TEST_F(HeicFileTest, severalAtOnce_areDecodedAsOneByOne) {
  std::vector<Image> images;
  std::vector<Data> want;
  for (const std::uint32_t side : {40U, 64U, 90U}) {
    const Data bytes =
        heic(write("a.png", test::writeWithLibpng(side, side, {8, PNG_COLOR_TYPE_RGB})));
    const std::string path = write(std::to_string(side) + ".heic", bytes);
    for (int copy = 0; copy < 2; ++copy)
      images.push_back(loadImageFile(path).value());
    want.push_back(test::packedPixels(images.back().bitmap().value()));
  }
  ASSERT_TRUE(makeImages(HomeFolder((folder / "home").string())).decode(images));
  for (std::size_t i = 0; i < images.size(); ++i) {
    EXPECT_EQ(test::packedPixels(images[i].bitmap().value()), want[i / 2]) << i;
  }
}

TEST_F(HeicFileTest, damage_isRefusedOrDecodedButNeverFatal) {
  testing::internal::CaptureStderr();
  const Data bytes = heic(write("a.png", test::writeWithLibpng(64, 48, {8, PNG_COLOR_TYPE_RGB})));
  for (std::size_t length = 12; length < bytes.size(); length += bytes.size() / 12) {
    const std::string why = whyNot(write(
        "short.heic", Data(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(length))));
    EXPECT_NE(why, "loaded") << length << " of " << bytes.size();
  }
  std::mt19937 random(9);
  for (int round = 0; round < 60; ++round) {
    Data damaged = bytes;
    for (int i = 0; i < 3; ++i)
      damaged[12 + random() % (damaged.size() - 12)] = static_cast<std::uint8_t>(random());
    EXPECT_NE(whyNot(write("damaged.heic", damaged)), "") << "round " << round;
  }
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "") << "of the library's own";
}

TEST_F(ImageFileTest, writePngFiles_putsEachInPlaceAndReportsTheRest) {
  const HomeFolder home((folder / "home").string());
  const Images images = makeImages(home);
  const Image picture = test::positionImage(40, 30);
  const std::string outside = (folder / "outside").string();
  const std::string blocked = write("file", {1}) + "/x.png";
  const std::vector<PngFile> files = {{home.groupFolder() + "/0original.png", picture},
                                      {blocked, picture},
                                      {outside + "/1.png", picture}};
  const auto results = images.writePngFiles(files);
  ASSERT_EQ(results.size(), 3U);
  EXPECT_TRUE(results[0] && results[2]);
  EXPECT_FALSE(results[1]);
  EXPECT_EQ(fs::file_size(files[0].path), *results[0]);
  const auto back = images.load(files[2].path);
  ASSERT_TRUE(back);
  EXPECT_EQ(test::packedPixels(back->bitmap().value()),
            test::packedPixels(picture.bitmap().value()));
  EXPECT_TRUE(fs::is_empty(home.pendingFolder()));
  EXPECT_EQ(fs::status(files[0].path).permissions(), fs::perms(0600));
  EXPECT_EQ(fs::status(home.groupFolder()).permissions(), fs::perms(0700));
}

TEST_F(ImageFileTest, replaceFile_leavesTheOldOneWhenItCant) {
  const HomeFolder home((folder / "home").string());
  const Data bytes = {1, 2, 3};
  const std::string path = home.groupFolder() + "/a.png";
  ASSERT_TRUE(replaceFile(home, path, bytes));
  fs::remove_all(home.pendingFolder());
  write("home/tmp", {9}); // a file in the place of the pending folder
  EXPECT_FALSE(replaceFile(home, path, Data{4}));
  EXPECT_EQ(fs::file_size(path), 3U);
}

} // namespace
} // namespace vitrelle::host
