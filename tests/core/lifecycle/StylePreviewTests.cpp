#include "core/drawing/Describe.h"
#include "tests/core/lifecycle/LifecycleTest.h"

namespace vitrelle {
namespace {

class StylePreviewTest : public test::LifecycleTest {
 protected:
  std::string drawn() {
    preview.appear();
    return describe(preview.face({98, 98}));
  }
  StylePreview preview{platform, styleFamily("text")};
};

TEST_F(StylePreviewTest, style_isTheLastWithTheCurrentTag) {
  storeStyles(3);
  EXPECT_NE(drawn().find("text \"0\""), std::string::npos);
  setNumber("textSelectedConfig", 2);
  EXPECT_NE(drawn().find("text \"2\""), std::string::npos);
  auto records = stored();
  records[0].textConfigTag = 2;
  records[2].textConfigTag = 2;
  records[2].textWidgetTextColour = Colour::parse("102030");
  store(records);
  EXPECT_NE(drawn().find("text \"2\" in \"\" 18 102030"), std::string::npos);
}

TEST_F(StylePreviewTest, words_areSmallerWhereTheSquareWouldCutThem) {
  storeStyles(1);
  const auto drawnAt = [&](const std::string& words, std::int64_t size) {
    auto records = stored();
    records[0].textWidgetText = words;
    records[0].textWidgetSize = size;
    store(records);
    return drawn();
  };
  EXPECT_EQ(drawnAt("short", 18).find("group transform 0"), std::string::npos);
  // Wide as the square at two thirds of its size, and whole in a widget 158 points wide.
  const std::string smaller = drawnAt("Breathe!", 36);
  EXPECT_NE(smaller.find("group transform 0.6"), std::string::npos) << smaller;
  const std::string cut = drawnAt(std::string(100, 'x'), 36);
  EXPECT_NE(cut.find("group transform 0.62 "), std::string::npos) << cut << "as the widget cuts it";
}

TEST_F(StylePreviewTest, pages_preferTheLightScreenshot) {
  setNumber("amountOfConfigs", 3);
  addStyle(0);
  addOriginal(1, darkStyle);
  phone.userInterfaceStyle = darkStyle;
  const auto pages = preview.pages();
  ASSERT_EQ(pages.size(), 3U);
  EXPECT_EQ(pages[0], (SliceName{"original", {0}, lightStyle}));
  EXPECT_EQ(pages[1], (SliceName{"original", {1}, darkStyle}));
  EXPECT_FALSE(pages[2]);
}

TEST_F(StylePreviewTest, widget_liesWhereTheTopLeftOneDoes) {
  EXPECT_EQ(preview.pageSize(), (PointSize{393 / 1.5, 852 / 1.5}));
  const PointRect box = preview.widgetBox();
  EXPECT_DOUBLE_EQ(box.width, 393 * 0.25);
  EXPECT_DOUBLE_EQ(box.height, box.width);
  EXPECT_DOUBLE_EQ(box.y, 852 / 1.5 * 0.125);
  EXPECT_DOUBLE_EQ(2 * box.x + box.width + 393 / 3.5, 393 / 1.5);
}

} // namespace
} // namespace vitrelle
