#include "core/lifecycle/StyleEntry.h"

#include "tests/core/lifecycle/LifecycleTest.h"

#include <set>

namespace vitrelle {
namespace {

class StyleEntryTest : public test::LifecycleTest {
 protected:
  StyleEntry entry{platform, styleFamily("text")};
};

TEST_F(StyleEntryTest, create_opensUpToTwelveStyles) {
  storeStyles(11);
  entry.appear();
  entry.tapCreate();
  EXPECT_TRUE(entry.showCreate());
  EXPECT_FALSE(entry.alert());

  storeStyles(12); // the twelfth was made on the sheet
  entry.dismissSheet();
  EXPECT_FALSE(entry.showCreate());
  entry.tapCreate();
  EXPECT_FALSE(entry.showCreate());
  EXPECT_EQ(entry.alert()->title, "Cannot Create Text Widget Style");
  EXPECT_EQ(entry.alert()->message,
            "You've hit the max amount of Text Widget Styles you can make, please edit an "
            "existing one.");
  EXPECT_EQ(surroundings.felt, (std::vector<std::string>{"light impact", "error"}));
  entry.dismissAlert();
  EXPECT_FALSE(entry.alert());
}

TEST_F(StyleEntryTest, withoutAStyle_galleryOpensAndPreviewDoesNot) {
  damage();
  entry.appear();
  entry.tapGallery();
  EXPECT_TRUE(entry.showGallery());
  entry.dismissSheet();
  entry.tapPreview();
  EXPECT_FALSE(entry.showPreview());
  EXPECT_EQ(entry.alert()->title, "Cannot open Widget Preview");
  EXPECT_EQ(entry.alert()->message, "Please Create a Text Widget Style.");
  EXPECT_EQ(surroundings.felt, (std::vector<std::string>{"light impact", "error"}));
}

TEST_F(StyleEntryTest, stylesThatCannotBeRead_areNeitherAddedToNorCalledNone) {
  storeStyles(12);
  defaults.broken = {Suite::group};
  entry.appear();
  entry.tapCreate();
  entry.tapPreview();
  EXPECT_FALSE(entry.showCreate());
  EXPECT_FALSE(entry.alert());
  EXPECT_EQ(surroundings.felt, (std::vector<std::string>{"error", "error"}));
  defaults.broken = {};
  entry.tapCreate();
  EXPECT_EQ(entry.alert()->title, "Cannot Create Text Widget Style");
}

TEST(FamilyTable, families_haveTheirKnownWords) {
  const FamilyDescription& music = familyDescription("music");
  EXPECT_EQ(music.entryTitle, "Music Widget");
  EXPECT_EQ(music.overLimitTitle, "Cannot Create Weather Widget Style");
  EXPECT_EQ(music.noPreviewMessage, "Please Create a Weather Widget Style.");
  EXPECT_EQ(music.assignTitle, "Link Weather Style");
  EXPECT_EQ(music.assignItem, "Link to Vitrelle Style");
  EXPECT_EQ(familyDescription("text").assignTitle, "Link Time Style");
  EXPECT_EQ(familyDescription("text").assignItem, "Assign to Vitrelle Style");
  EXPECT_EQ(familyDescription("image").noPreviewMessage, "Please Create a Image Widget Style.");
  EXPECT_EQ(familyDescription("image").assignRefusal,
            "This Vitrelle Style already has an Image Style linked to it, please pick another "
            "Vitrelle Style.");
  EXPECT_EQ(familyDescription("clock").assignRefusal,
            "This Vitrelle Style already has an Time Style linked to it, please pick another "
            "Vitrelle Style.");
}

TEST(FamilyTable, everyFamily_hasKeysAndScreensOfItsOwn) {
  std::set<std::string_view> screens;
  std::size_t named = 0;
  forEachFamily([&](const auto& family) {
    const FamilyDescription& words = styleFamily(family.name).words();
    EXPECT_EQ(words.name, family.name);
    for (const std::string_view screen :
         {words.entryScreen, words.setupScreen, words.secondScreen, words.galleryScreen,
          words.assignScreen, words.previewScreen}) {
      EXPECT_FALSE(screen.empty()) << family.name;
      screens.insert(screen);
      ++named;
    }
  });
  EXPECT_EQ(screens.size(), named);
  EXPECT_DEATH(familyDescription("nothing"), "there is no widget family nothing");
}

} // namespace
} // namespace vitrelle
