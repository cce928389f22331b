#include "core/drawing/LineLimit.h"

#include "tests/support/UnimplementedPlatform.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <variant>

namespace vitrelle {
namespace {

constexpr double endless = std::numeric_limits<double>::infinity();

/// Each letter is 10 wide and high, and a line may end behind any.
PointSize lettersSize(const std::string& text, const Font&, const PointSize& room) {
  const auto letters = static_cast<double>(text.size());
  const double most = std::max(std::floor(room.height / 10), 1.0);
  const double inLine = std::clamp(std::floor(room.width / 10), 1.0, letters);
  return {10 * inLine, 10 * std::min(std::ceil(letters / inLine), most)};
}

class LineLimitTest : public testing::Test {
 protected:
  LineLimitTest() { drawing.textSize = lettersSize; }

  Drawing drawing = test::unimplementedPlatform().drawing;
  View sixLetters = text("abcdef", {.size = 10}, {});
};

TEST_F(LineLimitTest, words_takeNoMoreLines) {
  struct Case {
    int most;
    PointSize room;
    PointSize taken;
    bool whole;
  };
  for (const auto& [most, room, taken, whole] :
       {Case{1, {endless, endless}, {60, 10}, true}, Case{1, {60, 5}, {60, 10}, true},
        Case{1, {50, endless}, {50, 10}, false}, Case{2, {30, endless}, {30, 20}, false},
        Case{2, {20, endless}, {20, 20}, false}, Case{3, {20, 20}, {20, 20}, false},
        Case{2, {60, 10}, {60, 10}, true}}) {
    const View limited = inLines(sixLetters, most);
    EXPECT_EQ(limited.node().size(drawing, room), taken) << most << " in " << room.width;
    EXPECT_EQ(limited.node().isWhole(drawing, room), whole) << most << " in " << room.width;
  }
}

TEST_F(LineLimitTest, wordsThatFit_areDrawnAsWithoutALimit) {
  const auto drawn = [&](const View& view, const PointSize& room) {
    DisplayList list;
    view.node().draw(drawing, {0, 0, 1, 1}, room, list);
    return std::get<DrawnText>(list.at(0).content);
  };
  const View limited = inLines(sixLetters, 2);
  EXPECT_EQ(drawn(limited, {30, 100}), drawn(sixLetters, {30, 100}));
  EXPECT_EQ(drawn(limited, {20, 100}).room, (PointSize{20, 20}));
}

} // namespace
} // namespace vitrelle
