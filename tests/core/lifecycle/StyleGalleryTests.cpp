#include "core/drawing/Describe.h"
#include "tests/core/lifecycle/LifecycleTest.h"

namespace vitrelle {
namespace {

class StyleGalleryTest : public test::LifecycleTest {
 protected:
  StyleGallery gallery{platform, styleFamily("text")};
};

TEST_F(StyleGalleryTest, beforeAndWithoutStyles_saysSo) {
  EXPECT_EQ(gallery.placeholder(), "Loading");
  gallery.appear();
  EXPECT_EQ(gallery.placeholder(), "No Text Widget Styles");
  EXPECT_TRUE(gallery.tiles().empty());
}

TEST_F(StyleGalleryTest, tiles_showEachStyleOnItsWallpaper) {
  storeStyles(4);
  auto records = stored();
  records[1].textLinkedConfig = 2; // has a slice
  records[2].textLinkedConfig = 5; // has none
  store(records);
  addSlice("topLeftSmall", 0, lightStyle);
  addSlice("topLeftSmall", 2, lightStyle);
  gallery.appear();
  EXPECT_FALSE(gallery.placeholder());
  const auto tiles = gallery.tiles();
  ASSERT_EQ(tiles.size(), 4U);
  const SliceName own{"topLeftSmall", {0}, lightStyle};
  EXPECT_EQ(tiles[0].backdrop, own);
  EXPECT_EQ(tiles[1].backdrop, (SliceName{"topLeftSmall", {2}, lightStyle}));
  EXPECT_EQ(tiles[2].backdrop, own);
  EXPECT_NE(describe(tiles[3].face).find("text \"3\""), std::string::npos);
  EXPECT_DOUBLE_EQ(gallery.tileSide(), 393 / 2.5);
  EXPECT_DOUBLE_EQ(gallery.spacing(), 393 / 18.0);

  folder.images.clear();
  gallery.appear();
  EXPECT_FALSE(gallery.tiles()[1].backdrop);
}

TEST_F(StyleGalleryTest, tick_makesAStyleTheCurrentOne) {
  storeStyles(3);
  gallery.appear();
  EXPECT_TRUE(gallery.tiles()[0].current) << "an absent choice is the first";
  gallery.tapTick({0});
  EXPECT_EQ(surroundings.felt, std::vector<std::string>{"error"});
  EXPECT_EQ(console.reloads, 0);
  gallery.tapTick({2});
  EXPECT_EQ(number("textSelectedConfig"), 2);
  EXPECT_EQ(console.reloads, 1);
  EXPECT_TRUE(gallery.tiles()[2].current);
  EXPECT_FALSE(gallery.tiles()[0].current);
}

TEST_F(StyleGalleryTest, choiceOfAnotherProcess_isSeen) {
  storeStyles(2);
  gallery.appear();
  int changes = 0;
  const Subscription view = gallery.onChange([&] { ++changes; });
  ASSERT_TRUE(platform.defaults.set(Suite::group, "textSelectedConfig", std::int64_t{1}));
  EXPECT_EQ(changes, 1);
  EXPECT_TRUE(gallery.tiles()[1].current);
}

TEST_F(StyleGalleryTest, menu_opensTheEditorAndTheLinking) {
  storeStyles(2);
  gallery.appear();
  gallery.tapEdit({1});
  EXPECT_TRUE(gallery.showEdit());
  EXPECT_EQ(gallery.needToEdit(), RecordIndex{1});
  EXPECT_TRUE(printed("EDITING: 1"));
  storeStyles(3);
  gallery.dismissEdit();
  EXPECT_FALSE(gallery.showEdit());
  EXPECT_EQ(gallery.tiles().size(), 3U);
  gallery.tapAssign({0});
  EXPECT_TRUE(gallery.showAssignSheet());
  EXPECT_EQ(gallery.needToEdit(), RecordIndex{0});
}

TEST_F(StyleGalleryTest, arrayOfHundreds_isShownInPart) {
  storeStyles(500);
  gallery.appear();
  EXPECT_EQ(gallery.amount(), 500U);
  EXPECT_EQ(gallery.tiles().size(), 100U);
}

TEST_F(StyleGalleryTest, everyFamily_listsItsRecords) {
  forEachFamily([&](const auto& family) {
    auto records = GroupStore(platform).loadRecords(family);
    records.push_back(newRecord(family, records));
    GroupStore(platform).saveRecords(family, records);
    StyleGallery screen(platform, styleFamily(family.name));
    screen.appear();
    EXPECT_EQ(screen.tiles().size(), 1U) << family.name;
  });
}

} // namespace
} // namespace vitrelle
