#include "core/slicing/ImageLoader.h"

#include "tests/support/Fakes.h"
#include "tests/support/UnimplementedPlatform.h"

#include <gtest/gtest.h>

namespace vitrelle {
namespace {

class ImageLoaderTest : public testing::Test {
 protected:
  ImageLoaderTest() {
    folder.use(platform);
    console.use(platform);
    platform.bundle.identifier = [this] { return identifier; };
    for (const char* name : {"2original.png", "2originalDark.png", "overlayImage2.png",
                             "original.png", "originalDark.png"}) {
      folder.images.insert_or_assign(name, test::positionImage(2, 2));
    }
  }

  Platform platform = test::unimplementedPlatform();
  test::FakeFolder folder;
  test::FakeConsole console;
  std::optional<std::string> identifier = "com.example.program";
  ImageLoader loader{platform};
};

TEST_F(ImageLoaderTest, loads_findTheirFilesByName) {
  EXPECT_EQ(loader.loadSlice("original", lightStyle, {2}), folder.images.at("2original.png"));
  EXPECT_EQ(loader.loadSlice("original", 0, {2}), folder.images.at("2original.png"));
  EXPECT_EQ(loader.loadSlice("original", darkStyle, {2}), folder.images.at("2originalDark.png"));
  EXPECT_EQ(loader.loadLegacy("original", lightStyle), folder.images.at("original.png"));
  EXPECT_EQ(loader.loadLegacy("original", darkStyle), folder.images.at("originalDark.png"));
  EXPECT_TRUE(console.lines.empty());
  EXPECT_EQ(loader.loadOverlay({2}), folder.images.at("overlayImage2.png"));
  EXPECT_EQ(console.lines,
            std::vector<std::string>{"Trying to load from /group/overlayImage2.png"});
  EXPECT_FALSE(loader.loadSlice("original", lightStyle, {3}));
}

TEST_F(ImageLoaderTest, noFolderOrShortBundleIdentifier_givesNothing) {
  for (const std::optional<std::string>& name :
       {std::optional<std::string>(), std::optional<std::string>("com.example"),
        std::optional<std::string>("program")}) {
    identifier = name;
    EXPECT_FALSE(loader.loadSlice("original", lightStyle, {2})) << name.value_or("none");
    EXPECT_FALSE(loader.loadOverlay({2}));
    EXPECT_FALSE(loader.loadLegacy("original", lightStyle));
  }
  identifier = "a.b.c.d";
  EXPECT_TRUE(loader.loadSlice("original", lightStyle, {2}));
  folder.exists = false;
  EXPECT_FALSE(loader.loadSlice("original", lightStyle, {2}));
}

} // namespace
} // namespace vitrelle
