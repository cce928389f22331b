#include "core/drawing/Describe.h"
#include "tests/core/lifecycle/LifecycleTest.h"

namespace vitrelle {
namespace {

class StyleEditorTest : public test::LifecycleTest {
 protected:
  StyleEditorTest() {
    storeStyles(2);
    platform.defaults.set = [this, set = platform.defaults.set](Suite suite, const std::string& key,
                                                                const StoreValue& value) {
      return full ? Status(Failure{key, "the disk is full"}) : set(suite, key, value);
    };
  }
  bool full = false; ///< nothing can be written

  const EditorTask create{};
  static EditorTask edit(std::int64_t index) { return {EditorMode::edit, {index}}; }
  StyleSetup setup(const EditorTask& task) { return {platform, styleFamily("text"), task}; }
  StyleSecond colours(const EditorTask& task) { return {platform, styleFamily("text"), task}; }
  /// What is drawn for the editor's record.
  static std::string drawn(const StyleEditor& editor) { return describe(editor.face({333, 156})); }
  static void fill(StyleEditor& editor) {
    editor.setValue(0, std::string("Hello"));
    editor.setValue(1, std::string("Inter-Bold"));
    editor.setValue(2, std::int64_t{40});
    editor.setValue(3, false);
  }
};

TEST_F(StyleEditorTest, setup_makesARecordBehindTheOthers) {
  auto editor = setup(create);
  editor.appear();
  ASSERT_EQ(editor.rows().size(), 4U);
  EXPECT_EQ(editor.rows()[2].value, FormValue(std::int64_t{18}));
  EXPECT_EQ(editor.rows()[3].value, FormValue(true));
  EXPECT_NE(drawn(editor).find("\"No Text Set\""), std::string::npos);
  fill(editor);
  EXPECT_NE(drawn(editor).find("text \"Hello\" in \"Inter-Bold\" 40 FFFFFF"), std::string::npos);
  EXPECT_EQ(drawn(editor).find("shadow"), std::string::npos);
  editor.save();
  ASSERT_EQ(stored().size(), 3U);
  EXPECT_EQ(stored()[2], (textWidgetData{.id = 0,
                                         .textConfigTag = 2,
                                         .textWidgetText = "Hello",
                                         .textWidgetFont = "Inter-Bold",
                                         .textWidgetSize = 40,
                                         .textWidgetShadow = false,
                                         .textWidgetTextColour = colours::white,
                                         .textLinkedConfig = 13}));
  EXPECT_EQ(console.reloads, 1);
  EXPECT_EQ(surroundings.felt, std::vector<std::string>{"light impact"});
  EXPECT_FALSE(number("textSelectedConfig"));
}

TEST_F(StyleEditorTest, setup_changesARecordButNotItsColourAndLink) {
  auto records = stored();
  records[1].textWidgetTextColour = colours::accent;
  records[1].textLinkedConfig = 4;
  store(records);
  auto editor = setup(edit(1));
  editor.appear();
  EXPECT_EQ(editor.rows()[0].value, FormValue(std::string("1")));
  EXPECT_NE(drawn(editor).find("18 FFFFFF"), std::string::npos) << "colours are the next step's";
  fill(editor);
  editor.save();
  records[1].textWidgetText = "Hello";
  records[1].textWidgetFont = "Inter-Bold";
  records[1].textWidgetSize = 40;
  records[1].textWidgetShadow = false;
  records[1].textWidgetTextColour = Colour::parse("63E6E3");
  EXPECT_EQ(stored(), records);
}

TEST_F(StyleEditorTest, values_stayWithinWhatTheirRowsTake) {
  auto editor = setup(create);
  for (const auto& [told, held] : {std::pair{9, 10}, {81, 80}, {-5, 10}, {10, 10}, {80, 80}}) {
    editor.setValue(2, std::int64_t{told});
    EXPECT_EQ(editor.rows()[2].value, FormValue(std::int64_t{held})) << told;
  }
  editor.setValue(2, std::string("large"));
  editor.setValue(99, true);
  EXPECT_EQ(editor.rows()[2].value, FormValue(std::int64_t{80}));
}

TEST_F(StyleEditorTest, indexOutOfRange_leavesTheFormAndStopsTheSave) {
  for (const std::int64_t index : {std::int64_t{-1}, std::int64_t{2}, std::int64_t{1} << 40}) {
    auto editor = setup(edit(index));
    editor.appear();
    EXPECT_EQ(editor.rows()[0].value, FormValue(std::string())) << index;
    EXPECT_DEATH(editor.save(), "no widget style to edit");
    auto second = colours(edit(index));
    second.appear();
    second.save();
    EXPECT_FALSE(number("textSelectedConfig")) << index;
  }
}

TEST_F(StyleEditorTest, colour_isWrittenToTheNewestAndSelectsIt) {
  auto editor = colours(create);
  editor.appear();
  EXPECT_NE(drawn(editor).find("text \"1\""), std::string::npos);
  editor.setValue(0, Colour{1, 0.5F, 0, 0.25F});
  EXPECT_NE(drawn(editor).find("FF8000 alpha 0.25"), std::string::npos);
  editor.save();
  EXPECT_EQ(stored()[1].textWidgetTextColour, Colour::parse("FF8000"));
  EXPECT_EQ(stored()[0].textWidgetTextColour, colours::white);
  EXPECT_EQ(number("textSelectedConfig"), 1);
  EXPECT_EQ(console.reloads, 1);
  EXPECT_EQ(surroundings.felt, std::vector<std::string>{"success"});

  auto first = colours(edit(0));
  first.appear();
  first.save();
  EXPECT_EQ(number("textSelectedConfig"), 0);
}

TEST_F(StyleEditorTest, brokenStore_letsTheFlowEndAsIfItHadWritten) {
  defaults.broken = {Suite::group};
  auto editor = setup(create);
  editor.appear();
  editor.save();
  const auto second = editor.next();
  second->appear();
  second->save();
  EXPECT_EQ(surroundings.felt, (std::vector<std::string>{"light impact", "success"}));
  EXPECT_EQ(number("textSelectedConfig"), std::nullopt);
  defaults.broken = {};
  EXPECT_EQ(stored().size(), 2U) << "nothing else is lost";
}

TEST_F(StyleEditorTest, styleThatCannotBeRead_isNotTakenForMissing) {
  defaults.broken = {Suite::group};
  auto editor = setup(edit(1));
  editor.appear();
  EXPECT_EQ(editor.save(), Saved::notStored);
  defaults.broken = {};
  EXPECT_EQ(stored().size(), 2U);
}

TEST_F(StyleEditorTest, newStyleThatWasNotTaken_isSavedByTheNextStepAndNoOtherIsTouched) {
  const auto before = stored();
  for (const bool fullToTheEnd : {true, false}) {
    SCOPED_TRACE(fullToTheEnd);
    full = true;
    auto editor = setup(create);
    editor.appear();
    fill(editor);
    editor.save();
    EXPECT_EQ(stored(), before);
    const auto second = editor.next();
    second->appear();
    EXPECT_NE(drawn(*second).find("text \"Hello\""), std::string::npos) << "not an older style";
    second->setValue(0, Colour{1, 0.5F, 0, 1});
    full = fullToTheEnd;
    second->save();
    if (fullToTheEnd) {
      EXPECT_EQ(stored(), before);
      EXPECT_EQ(number("textSelectedConfig"), std::nullopt);
    }
  }
  ASSERT_EQ(stored().size(), 3U);
  EXPECT_EQ((std::vector{stored()[0], stored()[1]}), before);
  EXPECT_EQ(stored()[2].textWidgetText, "Hello");
  EXPECT_EQ(stored()[2].textConfigTag, 2);
  EXPECT_EQ(stored()[2].textWidgetTextColour, Colour::parse("FF8000"));
  EXPECT_EQ(number("textSelectedConfig"), 2);
}

TEST_F(StyleEditorTest, changeThatWasNotTaken_isSavedByTheNextStep) {
  full = true;
  auto editor = setup(edit(0));
  editor.appear();
  fill(editor);
  editor.save();
  const auto second = editor.next();
  second->appear();
  full = false;
  second->save();
  EXPECT_EQ(stored()[0].textWidgetText, "Hello");
  EXPECT_EQ(stored()[1].textWidgetText, "1");
}

TEST_F(StyleEditorTest, styleOfAnother_isNotPainted) {
  auto editor = setup(create);
  editor.appear();
  fill(editor);
  editor.save();
  const auto second = editor.next();
  auto records = stored();
  records.push_back(newRecord(families::text, records));
  store(records);
  second->appear();
  second->setValue(0, Colour{1, 0.5F, 0, 1});
  second->save();
  ASSERT_EQ(stored().size(), 4U);
  EXPECT_EQ(stored()[2].textWidgetTextColour, Colour::parse("FF8000"));
  EXPECT_EQ(stored()[3], records[3]);
  EXPECT_EQ(number("textSelectedConfig"), 2);

  const auto late = editor.next();
  records.resize(1); // the styles before it are gone, so this is no store to add to
  store(records);
  late->appear();
  late->save();
  EXPECT_EQ(stored(), records);
}

TEST_F(StyleEditorTest, damagedArray_countsAsEmpty) {
  damage();
  auto editor = setup(create);
  editor.appear();
  editor.save();
  ASSERT_EQ(stored().size(), 1U);
  EXPECT_EQ(stored()[0].textConfigTag, 0);
}

TEST_F(StyleEditorTest, twoCopies_lastSaveWins) {
  auto first = setup(edit(0));
  auto second = setup(edit(1));
  first.appear();
  second.appear();
  first.setValue(0, std::string("first"));
  second.setValue(0, std::string("second"));
  first.save();
  second.save();
  EXPECT_EQ(stored()[0].textWidgetText, "0");
  EXPECT_EQ(stored()[1].textWidgetText, "second");
}

TEST_F(StyleEditorTest, preview_hasTheSizeOfEveryMediumOne) {
  const PointSize size = mediumPreviewSize(platform);
  EXPECT_EQ(size.width, 333);
  EXPECT_DOUBLE_EQ(size.height, 157.2);
}

TEST_F(StyleEditorTest, preview_standsOnTheSliceOfTheStyleInUse) {
  setNumber("selectedConfig", 3);
  addSlice("topMedium", 3, darkStyle);
  auto editor = setup(create);
  editor.appear();
  EXPECT_FALSE(editor.img());
  phone.userInterfaceStyle = darkStyle;
  editor.appear();
  EXPECT_EQ(editor.img(), (SliceName{"topMedium", {3}, darkStyle}));
}

TEST_F(StyleEditorTest, suggestions_comeFromTheWholeScreenshotAMomentLater) {
  addOriginal(0, lightStyle);
  auto editor = colours(create);
  editor.appear();
  editor.startSuggestions();
  EXPECT_FALSE(editor.suggestions().loaded());
  surroundings.pass(0);
  EXPECT_TRUE(editor.suggestions().loaded());
  EXPECT_EQ(editor.suggestions().palleteColours().size(), 5U);
  editor.startSuggestions();
  surroundings.pass(0);
  EXPECT_EQ(editor.suggestions().palleteColours().size(), 10U);

  phone.userInterfaceStyle = darkStyle;
  editor.startSuggestions();
  EXPECT_DEATH(surroundings.pass(0), "no screenshot to suggest colours from");
}

TEST_F(StyleEditorTest, suggestions_endWithTheScreen) {
  {
    auto editor = colours(create);
    editor.startSuggestions();
  }
  surroundings.pass(1); // without a screenshot it would end the program
}

} // namespace
} // namespace vitrelle
