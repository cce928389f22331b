#include "host/imaging/ImageFile.h"

#include "host/files/PendingFile.h"
#include "tests/imaging/LibpngPeer.h"
#include "tests/support/Fakes.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

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

TEST_F(ImageFileTest, fileThatShrinksAfterItsHeaderWasRead_isRefused) {
  const std::string path = write("a.png", test::writeWithLibpng(300, 200, {}));
  const auto image = loadImageFile(path);
  ASSERT_TRUE(image);
  fs::resize_file(path, 200);
  const auto bitmap = image->bitmap();
  ASSERT_FALSE(bitmap);
  EXPECT_EQ(bitmap.failure().what, path);
}

TEST_F(ImageFileTest, heicWithOddSides_comesInWhole) {
  if (std::system("command -v heif-enc >/dev/null 2>&1") != 0) GTEST_SKIP() << "no heif-enc";
  const std::string source =
      write("odd.png", test::writeWithLibpng(117, 55, {8, PNG_COLOR_TYPE_RGB}));
  const std::string heic = (folder / "odd.heic").string();
  ASSERT_EQ(std::system(("heif-enc -q 90 " + source + " -o " + heic + " >/dev/null 2>&1").c_str()),
            0);
  const auto image = loadImageFile(heic);
  ASSERT_TRUE(image) << image.failure().why;
  EXPECT_EQ(image->size(), (PixelSize{117, 55}));
  const Bitmap got = image->bitmap().value();
  const Bitmap want = loadImageFile(source).value().bitmap().value();
  double difference = 0;
  for (std::int32_t y = 0; y < 55; ++y) {
    for (std::int32_t i = 0; i < 4 * 117; ++i)
      difference += std::abs(got.row(y)[i] - want.row(y)[i]);
  }
  EXPECT_LT(difference / (55 * 4 * 117), 12) << "lossy, but the same picture";
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
