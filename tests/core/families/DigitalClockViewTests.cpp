#include "core/families/clock/DigitalClockView.h"

#include "core/drawing/Describe.h"
#include "core/families/clock/DateView.h"
#include "tests/support/Fakes.h"
#include "tests/support/UnimplementedPlatform.h"

#include <gtest/gtest.h>

namespace vitrelle {
namespace {

constexpr PlatformColour red{1, 0, 0, 1};
constexpr PlatformColour green{0, 1, 0, 1};

/// Letters are half as wide as high, and stand a fifth above their line's foot.
class DigitalClockViewTest : public testing::Test {
 protected:
  DigitalClockViewTest() { test::FakeDrawing::use(platform); }
  std::string drawn(const View& view) {
    return describe(layOut(view, {200, 100}, platform.drawing));
  }

  Platform platform = test::unimplementedPlatform();
  DigitalClockView face{.digitalFont = "Inter-Bold",
                        .digitalSize = 40,
                        .digitalColour = red,
                        .dateFont = "Inter-Thin",
                        .dateSize = 10,
                        .dateColour = green,
                        .time = "9:41",
                        .date = "1/9/07"};
};

TEST_F(DigitalClockViewTest, timeAlone_isOneTextOfEvenDigits) {
  const char* alone = "text \"9:41\" in \"Inter-Bold\" 40 even digits FF0000 at 60 30 size 80 40 "
                      "room 200 100\n";
  EXPECT_EQ(drawn(face.view()), alone);
  face.dateLength = 2;
  EXPECT_EQ(drawn(face.view()), alone);
}

TEST_F(DigitalClockViewTest, timeAndDate_standSideBySide) {
  face.dateEnabled = true;
  // 80 + 16 + 8 + 30 wide in all; the comma's foot is where the digits have theirs.
  EXPECT_EQ(drawn(face.view()),
            "text \"9:41\" in \"Inter-Bold\" 40 even digits FF0000 at 33 30 size 80 40 "
            "room 146 100\n"
            "text \", \" in \"\" 16 FF0000 at 113 49.2 size 16 16 room inf inf\n"
            "text \"1/9/07\" in \"Inter-Thin\" 10 00FF00 at 137 45 size 30 10 room 96 100\n");
  face.digitalSize = 10;
  const std::string words = drawn(face.view());
  EXPECT_NE(words.find("FF0000 at 63 46.8 size 20 10"), std::string::npos) << words;
  EXPECT_NE(words.find("FF0000 at 83 42 size 16 16"), std::string::npos) << words;
}

TEST_F(DigitalClockViewTest, dateOfNoLength_hidesTheTimeToo) {
  face.dateEnabled = true;
  for (const std::int64_t damaged : {-1, 2, 7}) {
    face.dateLength = damaged;
    EXPECT_EQ(drawn(face.view()), "") << damaged;
  }
}

TEST_F(DigitalClockViewTest, dateView_showsItsOwnLengths) {
  DateView date{.dateFont = "Inter-Thin", .dateSize = 10, .dateColour = green, .date = "1/9/07"};
  for (const std::int64_t length : {0, 1}) {
    date.dateLength = length;
    EXPECT_EQ(drawn(date.view()), "text \"1/9/07\" in \"Inter-Thin\" 10 00FF00 at 85 45 "
                                  "size 30 10 room 200 100\n");
  }
  date.dateLength = 7;
  EXPECT_EQ(drawn(date.view()), "");
}

} // namespace
} // namespace vitrelle
