#include "core/drawing/Describe.h"
#include "tests/core/lifecycle/LifecycleTest.h"

#include <memory>

namespace vitrelle {
namespace {

class StyleAssignTest : public test::LifecycleTest {
 protected:
  StyleAssignTest() {
    setNumber("amountOfConfigs", 4);
    storeStyles(3);
    auto records = stored();
    records[0].textLinkedConfig = 2;
    records[1].textLinkedConfig = 7; // of a wallpaper style that there is not
    records[2].textWidgetTextColour = colours::accent;
    store(records);
  }
  std::unique_ptr<StyleAssign> assign(std::int64_t index) {
    auto screen = std::make_unique<StyleAssign>(platform, styleFamily("text"), RecordIndex{index});
    screen->appear();
    return screen;
  }
};

TEST_F(StyleAssignTest, picker_offersNoneAndEveryWallpaperStyle) {
  const auto screen = assign(0);
  EXPECT_EQ(screen->vitrelleConfig(), StyleNumber{0}) << "whatever the present link";
  EXPECT_EQ(screen->options(), (std::vector<AssignOption>{{"None", std::nullopt},
                                                          {"1", StyleNumber{0}},
                                                          {"2", StyleNumber{1}},
                                                          {"3", StyleNumber{2}},
                                                          {"4", StyleNumber{3}}}));
  EXPECT_EQ(screen->invalidConfigs(), std::vector<StyleNumber>{{2}});
  EXPECT_TRUE(printed("[2]"));
}

TEST_F(StyleAssignTest, count_isFollowedUnlessItIsDamaged) {
  const auto screen = assign(0);
  int changes = 0;
  const Subscription view = screen->onChange([&] { ++changes; });
  ASSERT_TRUE(platform.defaults.set(Suite::group, "amountOfConfigs", std::int64_t{5}));
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(screen->options().size(), 6U);
  setNumber("amountOfConfigs", std::int64_t{1} << 60);
  EXPECT_LT(screen->options().size(), 1000U);
  setNumber("amountOfConfigs", -3);
  EXPECT_EQ(screen->options().size(), 1U);
}

TEST_F(StyleAssignTest, freeStyle_isLinked) {
  const auto screen = assign(1);
  screen->pick(StyleNumber{3});
  EXPECT_EQ(screen->save(), Saved::stored);
  EXPECT_EQ(stored()[1].textLinkedConfig, 3);
  EXPECT_EQ(stored()[0].textLinkedConfig, 2);
  EXPECT_EQ(console.reloads, 1);
  EXPECT_EQ(surroundings.felt, std::vector<std::string>{"success"});
}

TEST_F(StyleAssignTest, takenStyle_isRefusedEvenToItsOwner) {
  for (const std::int64_t index : {0, 1}) {
    const auto screen = assign(index);
    screen->pick(StyleNumber{2});
    EXPECT_EQ(screen->save(), Saved::refused);
    EXPECT_EQ(screen->alert()->title, "Cannot Assign to Style");
    EXPECT_EQ(screen->alert()->message,
              "This Vitrelle Style already has a Text Style linked to it, please pick another "
              "Vitrelle Style.");
    screen->dismissAlert();
    EXPECT_FALSE(screen->alert());
  }
  EXPECT_EQ(console.reloads, 0);
  EXPECT_EQ(surroundings.felt, (std::vector<std::string>{"error", "error"}));
}

TEST_F(StyleAssignTest, none_isAlwaysTaken) {
  const auto screen = assign(0);
  screen->pick(std::nullopt);
  EXPECT_EQ(screen->save(), Saved::stored);
  EXPECT_EQ(stored()[0].textLinkedConfig, 13);
}

TEST_F(StyleAssignTest, preview_staysWhite) {
  const std::string drawn = describe(assign(2)->face({333, 156}));
  EXPECT_NE(drawn.find("text \"2\" in \"\" 18 FFFFFF"), std::string::npos) << drawn;
}

TEST_F(StyleAssignTest, brokenStore_losesNothing) {
  defaults.broken = {Suite::group};
  const auto screen = assign(1);
  screen->pick(StyleNumber{0});
  EXPECT_EQ(screen->save(), Saved::notStored);
  defaults.broken = {};
  EXPECT_EQ(stored().size(), 3U);
}

TEST_F(StyleAssignTest, everyFamily_linksItsRecords) {
  forEachFamily([&](const auto& family) {
    auto records = GroupStore(platform).loadRecords(family);
    records.clear();
    records.push_back(newRecord(family, records));
    GroupStore(platform).saveRecords(family, records);
    StyleAssign screen(platform, styleFamily(family.name), {0});
    screen.appear();
    screen.pick(StyleNumber{1});
    EXPECT_EQ(screen.save(), Saved::stored);
    EXPECT_EQ(GroupStore(platform).loadRecords(family)[0].*family.linked, 1) << family.name;
  });
}

} // namespace
} // namespace vitrelle
