#include "core/centre/CustomDateTextView.h"

#include "tests/core/app/AppTest.h"

#include "core/drawing/Describe.h"

#include <limits>

namespace vitrelle {
namespace {

class CustomDateTextViewTest : public test::AppTest {
 protected:
  CustomDateTextViewTest() {
    time.use(platform);
    test::FakeDrawing::use(platform);
  }
  void store(const char* key, const StoreValue& value) {
    ASSERT_TRUE(platform.defaults.set(Suite::group, key, value));
  }
  std::string text(const char* key) {
    return std::get<std::string>(defaults.values(Suite::group).at(key));
  }
  static std::string face(const CustomDateTextView& screen) {
    return describe(screen.face({333, 150}));
  }
  static bool shows(const CustomDateTextView& screen, const std::string& part) {
    return face(screen).find(part) != std::string::npos;
  }

  test::FakeTime time;
};

TEST_F(CustomDateTextViewTest, withoutKeys_theDateIsWhiteHelveticaOfEighteen) {
  const CustomDateTextView screen(platform);
  EXPECT_EQ(face(screen),
            "group shadow 000000 alpha 0.3 radius 0 offset 3 3\n"
            "  text \"date 3 time 0 at 48600\" in \"Helvetica\" 18 centred FFFFFF at 67.5 66 "
            "size 198 18 room 333 150\n");
  EXPECT_TRUE(defaults.values(Suite::group).empty());
}

TEST_F(CustomDateTextViewTest, changes_areStoredAtOnceAndReload) {
  CustomDateTextView screen(platform);
  screen.setDateColour({1, 0, 0.25, 0.5});
  EXPECT_EQ(text("dateColour"), "1.0,0.0,0.25,0.5");
  screen.setDateFontSize(40);
  EXPECT_EQ(number("dateFontSize"), 40);
  EXPECT_EQ(console.reloads, 2);
  const CustomDateTextView again(platform);
  EXPECT_EQ(again.dateColour(), (PlatformColour{1, 0, 0.25, 0.5})) << "opacity is kept";
  EXPECT_EQ(again.dateFontSize(), 40);
}

TEST_F(CustomDateTextViewTest, otherWriters_showAtOnceAndDamageIsIgnored) {
  CustomDateTextView screen(platform);
  int changes = 0;
  const Subscription view = screen.onChange([&] { ++changes; });
  store("dateColour", std::string("0.0,0.0,1.0,1.0"));
  store("dateFontPicked", std::string("Inter-Regular"));
  store("dateFontSize", std::int64_t{33});
  store("solidEnabled", true);
  EXPECT_EQ(changes, 4);
  EXPECT_TRUE(shows(screen, "Inter-Regular")) << face(screen);
  EXPECT_TRUE(shows(screen, "33")) << face(screen);
  EXPECT_TRUE(screen.background().isOn());
  for (const char* damaged : {"", "0.5,0.5", "1,1,1,white"}) {
    store("dateColour", std::string(damaged));
    EXPECT_EQ(screen.dateColour(), (PlatformColour{0, 0, 1, 1})) << damaged;
  }
  ASSERT_TRUE(platform.defaults.remove(Suite::group, "dateFontSize"));
  ASSERT_TRUE(platform.defaults.remove(Suite::group, "dateFontPicked"));
  EXPECT_EQ(screen.dateFontSize(), 18);
  EXPECT_EQ(screen.dateFontPicked(), "Helvetica");
}

TEST_F(CustomDateTextViewTest, sizesOfAnyKind_areShownAndComeBackIntoTheRange) {
  CustomDateTextView screen(platform);
  const std::int64_t least = std::numeric_limits<std::int64_t>::min();
  const struct {
    std::int64_t stored;
    std::int64_t stepped;
  } cases[] = {{0, 10}, {-5, 10}, {9, 10}, {81, 80}, {1'000'000'000, 80}, {least, 10}};
  for (const auto& [stored, stepped] : cases) {
    store("dateFontSize", stored);
    EXPECT_EQ(screen.dateFontSize(), stored);
    EXPECT_FALSE(face(screen).empty());
    screen.setDateFontSize(stored);
    EXPECT_EQ(number("dateFontSize"), stepped) << stored;
  }
}

TEST_F(CustomDateTextViewTest, preview_standsOnTheStyleInUse) {
  folder.images.insert_or_assign("0topMedium.png", screenshot);
  folder.images.insert_or_assign("2topMediumDark.png", screenshot);
  CustomDateTextView screen(platform);
  EXPECT_EQ(screen.img(), (SliceName{"topMedium", {0}, lightStyle}));
  store("selectedConfig", std::int64_t{2});
  EXPECT_EQ(screen.img(), std::nullopt);
  phone.userInterfaceStyle = darkStyle;
  screen.appear();
  EXPECT_EQ(screen.img(), (SliceName{"topMedium", {2}, darkStyle}));
}

} // namespace
} // namespace vitrelle
