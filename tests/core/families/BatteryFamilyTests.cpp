#include "core/families/battery/BatteryFamily.h"

#include "core/drawing/Describe.h"
#include "tests/core/lifecycle/LifecycleTest.h"

#include <cmath>
#include <limits>

namespace vitrelle {
namespace {

class BatteryFamilyTest : public test::LifecycleTest {
 protected:
  BatteryFamilyTest() { battery.monitored = true; }
  std::vector<batteryWidgetData> batteries() const {
    return GroupStore(platform).loadRecords(families::battery);
  }
  static std::string titles(const StyleEditor& editor) {
    std::string titles;
    for (const ShownRow& shown : editor.rows())
      titles += (titles.empty() ? "" : ", ") + std::string(shown.row.title);
    return titles;
  }
  DisplayList face(const batteryWidgetData& record, FaceUse use = FaceUse::widget) {
    return layOut(styleFamily("battery").face(platform, record, use), {158, 158}, platform.drawing);
  }
  std::string drawn(const batteryWidgetData& record) { return describe(face(record)); }
};

TEST_F(BatteryFamilyTest, newStyle_isWhiteAndItsColoursBeginGreenAndGrey) {
  StyleSetup setup(platform, styleFamily("battery"), {});
  setup.appear();
  EXPECT_EQ(titles(setup), "Shape, Show Symbol, Symbol, Show Percentage, Font");
  EXPECT_EQ(setup.save(), Saved::stored);
  EXPECT_EQ(batteries()[0], batteryWidgetData{});

  phone.userInterfaceStyle = darkStyle;
  const auto second = setup.next();
  second->appear();
  EXPECT_EQ(titles(*second), "Set Ring Colour, Set Symbol Colour, Set Text Colour");
  EXPECT_EQ(second->rows()[0].value, FormValue(Colour::parse("30D158")));
  EXPECT_EQ(second->rows()[1].value, FormValue(colours::batteryGrey));
  EXPECT_EQ(batteries()[0], batteryWidgetData{}) << "left as it is until it is saved";
  second->setValue(3, Colour{1, 1, 0});
  EXPECT_EQ(second->save(), Saved::stored);
  EXPECT_EQ(batteries()[0].batteryRingColour, Colour::parse("30D158"));
  EXPECT_EQ(batteries()[0].batteryIconColour, Colour::parse("2B2B2E"));
  EXPECT_EQ(batteries()[0].batteryTextColour, Colour::parse("FFFF00"));

  StyleSecond edited(platform, styleFamily("battery"),
                     {.mode = EditorMode::edit, .configNumber = {0}});
  edited.appear();
  EXPECT_EQ(edited.rows()[2].value, FormValue(Colour::parse("FFFF00")));
}

TEST_F(BatteryFamilyTest, line_hasNeitherSymbolNorPercentageButKeepsThem) {
  GroupStore(platform).saveRecords(families::battery, {{.batterySymbol = "bolt"}});
  StyleSetup setup(platform, styleFamily("battery"),
                   {.mode = EditorMode::edit, .configNumber = {0}});
  setup.appear();
  setup.setValue(0, std::int64_t{2});
  EXPECT_EQ(titles(setup), "Shape");
  setup.save();
  EXPECT_EQ(batteries()[0].batterySymbol, "bolt");
  EXPECT_TRUE(batteries()[0].batteryShowSymbol);
  const auto second = setup.next();
  second->appear();
  EXPECT_EQ(titles(*second), "Set Line Colour");
  setup.setValue(0, std::int64_t{1});
  setup.setValue(1, false);
  EXPECT_EQ(titles(setup), "Shape, Show Symbol, Show Percentage, Font");
}

TEST_F(BatteryFamilyTest, symbol_isPickedOnTheOneSheet) {
  StyleSetup setup(platform, styleFamily("battery"), {});
  setup.appear();
  EXPECT_FALSE(setup.activeSheet());
  setup.openSheet(0);
  EXPECT_FALSE(setup.activeSheet()) << "a shape is picked in its row";
  setup.openSheet(2);
  ASSERT_TRUE(setup.activeSheet());
  EXPECT_EQ(setup.activeSheet()->row.control, FormControl::symbol);
  EXPECT_EQ(setup.activeSheet()->value, FormValue(std::string("iphone")));
  setup.setValue(2, std::string("bolt"));
  EXPECT_TRUE(setup.activeSheet()) << "it stays open after a choice";
  setup.openSheet(4);
  EXPECT_EQ(setup.activeSheet()->row.control, FormControl::font);
  setup.dismissSheet();
  EXPECT_FALSE(setup.activeSheet());
}

TEST_F(BatteryFamilyTest, level_isReadAtEachDrawingAndItsChangesAreTold) {
  battery.monitored = false;
  GroupStore(platform).saveRecords(families::battery, {{}});
  StyleGallery gallery(platform, styleFamily("battery"));
  EXPECT_TRUE(battery.monitored) << "by those who draw it";
  gallery.appear();
  int changes = 0;
  const Subscription view = gallery.onChange([&] { ++changes; });
  const auto tile = [&] { return describe(gallery.tiles()[0].face); };
  EXPECT_NE(tile().find("\"75%\""), std::string::npos) << tile();
  battery.set(0.5F);
  EXPECT_EQ(changes, 1);
  EXPECT_NE(tile().find("\"50%\""), std::string::npos);
}

TEST_F(BatteryFamilyTest, sizes_areThoseOfTheScreens) {
  const auto ring = [&](FaceUse use) {
    const DisplayList list =
        face({.batteryShowSymbol = false, .batteryShowPercentage = false}, use);
    const Path& path = std::get<DrawnPath>(list.at(0).content).path;
    return path.points.at(0).x - 79;
  };
  EXPECT_DOUBLE_EQ(ring(FaceUse::setup), 393 / 3.0 / 2 - 16);
  EXPECT_DOUBLE_EQ(ring(FaceUse::gallery), 393 / 3.5 / 2 - 16);
  const StylePreview preview(platform, styleFamily("battery"));
  EXPECT_DOUBLE_EQ(preview.widgetBox().width, 393 / 3.5);
}

TEST_F(BatteryFamilyTest, damagedValues_areDrawnWithoutACrash) {
  for (const float level : {-1.0F, 1.0F, 40.0F, std::nanf(""), std::numeric_limits<float>::max(),
                            -std::numeric_limits<float>::infinity()}) {
    battery.set(level);
    for (const std::int64_t type : {std::int64_t{0}, std::int64_t{1}, std::int64_t{2},
                                    std::int64_t{-3}, std::numeric_limits<std::int64_t>::max()})
      drawn({.batteryType = type, .batterySymbol = "no.such.symbol", .batteryFont = "No-Such"});
  }
  battery.set(-1);
  EXPECT_NE(drawn({}).find("\"-100%\""), std::string::npos);
}

} // namespace
} // namespace vitrelle
