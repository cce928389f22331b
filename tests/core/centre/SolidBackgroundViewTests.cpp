#include "core/centre/SolidBackgroundView.h"

#include "tests/core/app/AppTest.h"

namespace vitrelle {
namespace {

class SolidBackgroundViewTest : public test::AppTest {
 protected:
  void store(const char* key, const StoreValue& value) {
    ASSERT_TRUE(platform.defaults.set(Suite::group, key, value));
  }
  StoreValue stored(const char* key) { return defaults.values(Suite::group).at(key); }
};

constexpr PlatformColour white{1, 1, 1, 1};

TEST_F(SolidBackgroundViewTest, firstOpening_isWhiteAndOffAndWritesNothing) {
  const SolidBackgroundView screen(platform);
  EXPECT_FALSE(screen.fillColour());
  EXPECT_EQ(screen.solidBackgroundColour(), white);
  EXPECT_TRUE(defaults.values(Suite::group).empty());
  EXPECT_EQ(console.reloads, 0);
}

TEST_F(SolidBackgroundViewTest, changes_areStoredAtOnceEachByItself) {
  SolidBackgroundView screen(platform);
  screen.setFillColour(true);
  EXPECT_EQ(stored("solidEnabled"), StoreValue(true));
  EXPECT_FALSE(defaults.values(Suite::group).contains("backgroundSolid"));
  EXPECT_EQ(console.reloads, 1);
  screen.setSolidBackgroundColour({1, 0.5, 0.25, 1});
  EXPECT_EQ(stored("backgroundSolid"), StoreValue(std::string("1.0,0.5,0.25,1.0")));
  EXPECT_EQ(console.reloads, 2);
  screen.setFillColour(false);
  EXPECT_EQ(stored("solidEnabled"), StoreValue(false));
  const SolidBackgroundView again(platform);
  EXPECT_EQ(again.solidBackgroundColour(), (PlatformColour{1, 0.5, 0.25, 1}));
}

TEST_F(SolidBackgroundViewTest, otherWriters_showAtOnceAndDamageIsIgnored) {
  SolidBackgroundView screen(platform);
  int changes = 0;
  const Subscription view = screen.onChange([&] { ++changes; });
  store("backgroundSolid", std::string("0.1,0.2,0.3,0.4"));
  store("solidEnabled", true);
  const PlatformColour told{0.1, 0.2, 0.3, 0.4};
  EXPECT_EQ(screen.solidBackgroundColour(), told);
  EXPECT_TRUE(screen.fillColour());
  EXPECT_EQ(changes, 2);
  for (const StoreValue& damaged :
       {StoreValue(std::string("0.1,0.2")), StoreValue(std::string("a,b,c,d")),
        StoreValue(std::string()), StoreValue(std::int64_t{7})}) {
    store("backgroundSolid", damaged);
    EXPECT_EQ(screen.solidBackgroundColour(), told);
    EXPECT_EQ(SolidBackgroundView(platform).solidBackgroundColour(), white);
    EXPECT_EQ(stored("backgroundSolid"), damaged) << "it stays until a colour is picked";
  }
  ASSERT_TRUE(platform.defaults.remove(Suite::group, "solidEnabled"));
  EXPECT_FALSE(screen.fillColour());
}

TEST_F(SolidBackgroundViewTest, preview_standsOnTheFirstStyleWhicheverIsInUse) {
  setNumber("selectedConfig", 3);
  folder.images.insert_or_assign("3topMedium.png", screenshot);
  folder.images.insert_or_assign("3topMediumDark.png", screenshot);
  SolidBackgroundView screen(platform);
  EXPECT_EQ(screen.img(), std::nullopt);
  folder.images.insert_or_assign("0topMedium.png", screenshot);
  screen.appear();
  EXPECT_EQ(screen.img(), (SliceName{"topMedium", {0}, lightStyle}));
  phone.userInterfaceStyle = darkStyle;
  screen.appear();
  EXPECT_EQ(screen.img(), std::nullopt) << "the other appearance is no stand-in";
}

TEST_F(SolidBackgroundViewTest, brokenStore_changesWhatIsShownAndReloads) {
  defaults.broken = {Suite::group};
  SolidBackgroundView screen(platform);
  screen.setFillColour(true);
  EXPECT_TRUE(screen.fillColour());
  EXPECT_EQ(console.reloads, 1);
}

} // namespace
} // namespace vitrelle
