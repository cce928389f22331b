#include "core/families/clock/ClockFamily.h"

#include "core/drawing/Describe.h"
#include "core/families/clock/Moment.h"
#include "tests/core/lifecycle/LifecycleTest.h"

#include <limits>

namespace vitrelle {
namespace {

class ClockFamilyTest : public test::LifecycleTest {
 protected:
  std::vector<clockWidgetData> clocks() const {
    return GroupStore(platform).loadRecords(families::clock);
  }
  void storeClock(const clockWidgetData& record) {
    GroupStore(platform).saveRecords(families::clock, {record});
  }
  StyleSetup setup(EditorTask task) { return {platform, styleFamily("clock"), std::move(task)}; }
  static std::string titles(const StyleEditor& editor) {
    std::string titles;
    for (const ShownRow& shown : editor.rows())
      titles += (titles.empty() ? "" : ", ") + std::string(shown.row.title);
    return titles;
  }
  /// Sets the row of a title, of which a form may have two.
  static void set(StyleEditor& editor, std::string_view title, const FormValue& value,
                  int which = 0) {
    for (const ShownRow& shown : editor.rows()) {
      if (shown.row.title == title && which-- == 0) {
        editor.setValue(shown.index, value);
        return;
      }
    }
    ADD_FAILURE() << "there is no row " << title;
  }
  std::string drawn(const clockWidgetData& record, FaceUse use = FaceUse::widget) {
    return describe(
        layOut(styleFamily("clock").face(platform, record, use), {158, 158}, platform.drawing));
  }
};

constexpr std::int64_t one = 1;
constexpr std::int64_t two = 2;

TEST_F(ClockFamilyTest, rows_comeWithWhatTheyAreAbout) {
  auto analog = setup({.kind = "analog"});
  EXPECT_EQ(titles(analog), "Analog Style, Show Date");
  set(analog, "Analog Style", one);
  EXPECT_EQ(titles(analog), "Analog Style, Hour Shape, Show Date");
  set(analog, "Analog Style", two);
  set(analog, "Show Date", true);
  EXPECT_EQ(titles(analog),
            "Analog Style, Dial Shape, Hour Shape, Show Date, Date Length, Size: , Font");
  EXPECT_EQ(titles(setup({.kind = "digital"})), "Size: , Font, Show Date");
  EXPECT_EQ(titles(setup({.kind = "date"})), "Date Length, Size: , Font");
  EXPECT_EQ(titles(setup({})), "Analog Style, Show Date");
}

TEST_F(ClockFamilyTest, newStyle_hasItsKindAndWhiteColours) {
  auto editor = setup({.kind = "digital"});
  editor.appear();
  set(editor, "Size: ", std::int64_t{40});
  set(editor, "Show Date", true);
  set(editor, "Date Length", one);
  set(editor, "Size: ", std::int64_t{12}, 1);
  set(editor, "Font", std::string("Inter-Bold"), 1);
  EXPECT_EQ(editor.save(), Saved::stored);
  ASSERT_EQ(clocks().size(), 1U);
  EXPECT_EQ(clocks()[0], (clockWidgetData{.id = 1,
                                          .clockConfigTag = 0,
                                          .clockWidgetDateEnabled = true,
                                          .clockWidgetDateLength = 1,
                                          .clockWidgetDateSize = 12,
                                          .clockWidgetDateFont = "Inter-Bold",
                                          .clockWidgetDigitalSize = 40}));

  const auto second = editor.next();
  second->appear();
  EXPECT_EQ(titles(*second), "Time Colour, Date Colour");
  EXPECT_TRUE(second->rows()[1].row.isBehindDivider);
  set(*second, "Time Colour", Colour{1, 0, 0, 0.5F});
  EXPECT_EQ(second->save(), Saved::stored);
  EXPECT_EQ(clocks()[0].clockWidgetDigitalColour, Colour::parse("FF0000"));
  EXPECT_EQ(clocks()[0].clockWidgetDateColour, colours::white);
  EXPECT_EQ(number("clockSelectedConfig"), 0);
}

TEST_F(ClockFamilyTest, edit_keepsColoursTagAndLinkAndShowsThem) {
  clockWidgetData before{.id = 7, // an analog clock
                         .clockConfigTag = 0,
                         .clockWidgetDatePlacement = 5,
                         .clockWidgetAnalogComplexity = 1,
                         .clockWidgetAnalogArmsColour = Colour::parse("102030"),
                         .clockLinkedConfig = 3};
  storeClock(before);
  auto editor = setup({.mode = EditorMode::edit, .configNumber = {0}});
  editor.appear();
  EXPECT_NE(describe(editor.face({333, 157})).find("stroke 102030"), std::string::npos);
  set(editor, "Hour Shape", two);
  editor.save();
  before.id = 0;
  before.clockWidgetAnalogHoursShape = 2;
  EXPECT_EQ(clocks()[0], before);
  EXPECT_EQ(titles(*editor.next()), "Hands Colour") << "until it appears it is a new one's";
  const auto second = editor.next();
  second->appear();
  EXPECT_EQ(titles(*second), "Hands Colour, Hours Colour");
}

TEST_F(ClockFamilyTest, face_isOfTheKindAndTheMoment) {
  clockWidgetData digital{.id = 1};
  EXPECT_EQ(drawn(digital).find("text \"date 0 time 1 at 48600\" in \"\" 16 even digits"), 0U)
      << drawn(digital);
  digital.clockWidgetDateEnabled = true;
  digital.clockWidgetDateLength = 2;
  EXPECT_EQ(drawn(digital), "");
  digital.clockWidgetDateLength = 1;
  EXPECT_NE(drawn(digital).find("\"date 4 time 0 at 48600\""), std::string::npos);

  clockWidgetData date{.id = 2};
  EXPECT_NE(drawn(date).find("\"date 1 time 0 at 48600\""), std::string::npos);
  date.clockWidgetDateLength = 9;
  EXPECT_EQ(drawn(date), "");

  clockWidgetData analog{.id = 0, .clockWidgetAnalogComplexity = 2};
  EXPECT_NE(drawn(analog).find("M 79 79 L 93.142 64.858"), std::string::npos)
      << "the hour hand at 13.5 hours: " << drawn(analog);
  EXPECT_EQ(drawn(analog, FaceUse::preview).find("group transform 0.73 0 0 0.73"), 0U);
}

TEST_F(ClockFamilyTest, secondsOfToday_areThoseThatHavePassed) {
  EXPECT_EQ(secondsOfToday(platform), 48600);
  time.secondsFromUtc = -3600;
  EXPECT_EQ(secondsOfToday(platform), 45000);
  // Clocks were put forward by an hour this night: at 13:30 by the clock, 12.5 hours have passed.
  platform.dateTime.startOfDay = [this](const Date&) {
    return Date{time.now.secondsSinceReferenceDate - 45000};
  };
  EXPECT_EQ(secondsOfToday(platform), 45000);
}

TEST_F(ClockFamilyTest, preview_hasTheFaceAtItsTop) {
  storeClock({});
  StylePreview preview(platform, styleFamily("clock"));
  preview.appear();
  const PointRect box = preview.widgetBox();
  EXPECT_DOUBLE_EQ(box.y, 852 / 1.5 * 0.125);
  EXPECT_DOUBLE_EQ(box.width, 393 / 1.5 - 393 / 3.5);
  const std::string drawn = describe(preview.face({box.width, box.height}));
  EXPECT_NE(drawn.find("group transform 0.73 0 0 0.73 "), std::string::npos) << drawn;
}

TEST_F(ClockFamilyTest, damagedRecords_areDrawnWithoutACrash) {
  constexpr std::int64_t highest = std::numeric_limits<std::int64_t>::max();
  for (const std::int64_t number :
       {std::int64_t{0}, std::int64_t{-1}, std::int64_t{1'000'000'000}, highest, -highest}) {
    for (const std::int64_t kind : {0, 1, 2, 7}) {
      const clockWidgetData record{.id = kind,
                                   .clockWidgetDateEnabled = true,
                                   .clockWidgetDateLength = 1,
                                   .clockWidgetDateSize = number,
                                   .clockWidgetDateFont = "No-Such",
                                   .clockWidgetAnalogComplexity = 2,
                                   .clockWidgetAnalogDialShape = number,
                                   .clockWidgetAnalogHoursShape = number,
                                   .clockWidgetDigitalSize = number};
      for (const FaceUse use : {FaceUse::gallery, FaceUse::preview, FaceUse::setup})
        drawn(record, use);
    }
  }
  SUCCEED();
}

TEST_F(ClockFamilyTest, kinds_haveLiveSamples) {
  const StyleKinds kinds(platform, styleFamily("clock"));
  std::string captions;
  for (const StyleKind& kind : kinds.kinds()) {
    captions += std::string(kind.caption) + ", ";
    EXPECT_FALSE(kinds.sample(kind).empty()) << kind.caption;
  }
  EXPECT_EQ(captions, "Analog Time, Digital Time, Date Only, ");
  EXPECT_NE(describe(kinds.sample(kinds.kinds()[2])).find("\"date 4 time 0 at 48600\" in \"\" 17"),
            std::string::npos);
}

} // namespace
} // namespace vitrelle
