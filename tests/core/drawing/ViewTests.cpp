#include "core/drawing/View.h"

#include "core/drawing/Describe.h"
#include "core/drawing/Gradients.h"
#include "core/drawing/Shapes.h"
#include "tests/support/Fakes.h"
#include "tests/support/UnimplementedPlatform.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace vitrelle {
namespace {

constexpr PlatformColour white{1, 1, 1, 1};

class ViewTest : public testing::Test {
 protected:
  ViewTest() { test::FakeDrawing::use(platform); }

  /// A letter of a face in which each is 5 wide and 10 high.
  static View letters(const std::string& words) { return text(words, {.size = 10}, white); }
  static View box(std::optional<double> width, std::optional<double> height) {
    return framed(filled(shapes::rectangle, white), width, height);
  }
  /// The boxes of the texts and the corners of the shapes in 100 by 60 points.
  std::string places(const View& view) {
    std::string result;
    collect(layOut(view, {100, 60}, platform.drawing), result);
    return result;
  }
  PointSize size(const View& view, const PointSize& room) {
    return view.node().size(platform.drawing, room);
  }

  Platform platform = test::unimplementedPlatform();

 private:
  static std::string number(double value) { return std::to_string(std::lround(value)); }
  static void collect(const DisplayList& list, std::string& to) {
    for (const DisplayItem& item : list) {
      if (const auto* words = std::get_if<DrawnText>(&item.content)) {
        to += words->text + "@" + number(words->box.x) + "," + number(words->box.y) + " ";
      } else if (const auto* path = std::get_if<DrawnPath>(&item.content)) {
        const PathPoint& from = path->path.points[0];
        const PathPoint& end = path->path.points[2];
        to +=
            number(from.x) + "," + number(from.y) + "-" + number(end.x) + "," + number(end.y) + " ";
      } else if (const auto* group = std::get_if<DrawnGroup>(&item.content)) {
        collect(group->items, to);
      }
    }
  }
};

TEST_F(ViewTest, alone_standsInTheMiddle) {
  EXPECT_EQ(places(letters("abcd")), "abcd@40,25 ");
  EXPECT_EQ(places(padded(letters("abcd"), {.leading = 20})), "abcd@50,25 ");
  EXPECT_EQ(places(framed(letters("ab"), 100, 60, {Place::end, Place::start})), "ab@90,0 ");
}

TEST_F(ViewTest, gradientOfAShape_goesFromTopToBottomOfItsRoom) {
  const PlatformColour blue{0, 0, 1, 0.5};
  const auto strip = [&](const View& shape) {
    const DisplayList list = layOut(framed(shape, 20, 40), {100, 60}, platform.drawing);
    return std::get<DrawnPath>(list.front().content).gradient.value();
  };
  const LinearGradient gradient = strip(filled(shapes::circle, gradientOf(blue)));
  EXPECT_EQ(gradient.start, (PathPoint{40, 10}));
  EXPECT_EQ(gradient.end, (PathPoint{40, 50}));
  ASSERT_EQ(gradient.stops.size(), 2);
  EXPECT_GT(gradient.stops.front().colour.red, 0);
  EXPECT_EQ(gradient.stops.front().colour.alpha, 0.5);
  EXPECT_EQ(gradient.stops.back().colour, blue);
  EXPECT_EQ(strip(stroked(shapes::circle, {.width = 2}, gradientOf(blue))), gradient);
}

TEST_F(ViewTest, stacks_placeTheirPartsOneAfterTheOther) {
  EXPECT_EQ(places(hstack({letters("ab"), letters("abcd")})), "ab@31,25 abcd@49,25 ");
  EXPECT_EQ(places(vstack({letters("ab"), letters("abcd")}, Place::start, 0)),
            "ab@40,20 abcd@40,30 ");
  EXPECT_EQ(places(vstack({letters("ab"), letters("abcd")}, Place::end, 4)),
            "ab@50,18 abcd@40,32 ");
  EXPECT_EQ(places(zstack({letters("ab"), letters("abcd")}, {Place::start, Place::centre})),
            "ab@40,25 abcd@40,25 ");
}

TEST_F(ViewTest, flexibleParts_shareWhatIsLeft) {
  EXPECT_EQ(places(hstack({letters("ab"), spacer(), letters("ab")}, Place::centre, 0)),
            "ab@0,25 ab@90,25 ");
  EXPECT_EQ(places(hstack({box(std::nullopt, 10), letters("ab"), box(std::nullopt, 10)},
                          Place::centre, 0)),
            "0,25-45,35 ab@45,25 55,25-100,35 ");
  EXPECT_EQ(places(vstack({box(10, 10), spacer()}, Place::centre, 0)), "45,0-55,10 ")
      << "a marker at the top edge";
}

TEST_F(ViewTest, longTexts_shareARowEvenly) {
  const std::string sentence(40, 'x'); // 200 wide
  EXPECT_EQ(places(hstack({letters(sentence), letters(sentence)}, Place::centre, 10)),
            sentence + "@0,25 " + sentence + "@55,25 ");
  EXPECT_EQ(places(hstack({letters(sentence), letters("ab"), box(20, 10)}, Place::centre, 0)),
            sentence + "@0,25 ab@70,25 80,25-100,35 ")
      << "what is short or fixed keeps its size";
  EXPECT_EQ(places(hstack({letters(sentence), spacer(), box(20, 10)}, Place::centre, 0)),
            sentence + "@0,25 80,25-100,35 ")
      << "a space has what the others leave";
}

TEST_F(ViewTest, fixedWidth_leavesTheRestOfARowToOthers) {
  EXPECT_EQ(places(hstack({box(20, std::nullopt), spacer(), letters("ab")}, Place::centre, 0)),
            "0,0-20,60 ab@90,25 ");
  EXPECT_EQ(places(vstack({box(std::nullopt, 20), spacer(), letters("ab")}, Place::centre, 0)),
            "0,0-100,20 ab@45,50 ");
}

TEST_F(ViewTest, shapes_takeTheRoomOrTenPoints) {
  EXPECT_EQ(size(filled(shapes::circle, white), {30, 40}), (PointSize{30, 40}));
  constexpr double endless = std::numeric_limits<double>::infinity();
  EXPECT_EQ(size(filled(shapes::circle, white), {endless, 40}), (PointSize{10, 40}));
  EXPECT_EQ(size(padded(letters("ab"), {4, 3, 2, 1}), {endless, endless}), (PointSize{14, 16}));
}

TEST_F(ViewTest, groups_turnAboutTheirMiddle) {
  const auto list = layOut(rotated(box(20, 10), std::numbers::pi / 2), {100, 60}, platform.drawing);
  const auto& turn = std::get<DrawnGroup>(list[0].content).transform;
  const auto map = [&](double x, double y) {
    return PointSize{turn.a * x + turn.c * y + turn.x, turn.b * x + turn.d * y + turn.y};
  };
  EXPECT_NEAR(map(50, 30).width, 50, 1e-9);
  EXPECT_NEAR(map(50, 30).height, 30, 1e-9);
  EXPECT_NEAR(map(60, 30).width, 50, 1e-9) << "clockwise: the right end goes below";
  EXPECT_NEAR(map(60, 30).height, 40, 1e-9);
  EXPECT_EQ(places(scaled(letters("ab"), 3)), "ab@45,25 ") << "takes the room it took before";
}

TEST_F(ViewTest, shrunkToFit_isSmallerOnlyWhereWordsWouldBeCut) {
  const auto shrunk = [&](const std::string& words, double least) {
    const auto list = layOut(shrunkToFit(letters(words), least), {100, 60}, platform.drawing);
    const auto* group = std::get_if<DrawnGroup>(&list[0].content);
    return group != nullptr ? group->transform.a : 1;
  };
  EXPECT_EQ(shrunk(std::string(20, 'x'), 0.5), 1) << "just as wide as the room";
  EXPECT_NEAR(shrunk(std::string(25, 'x'), 0.5), 0.8, 0.01);
  EXPECT_LE(shrunk(std::string(25, 'x'), 0.5), 0.8);
  EXPECT_EQ(shrunk(std::string(90, 'x'), 0.5), 0.5) << "no smaller than told";
  const View words = shrunkToFit(letters(std::string(40, 'x')), 0.5);
  EXPECT_EQ(size(words, {100, 60}), (PointSize{100, 5}));
  EXPECT_EQ(places(shrunkToFit(letters("ab"), 0.5)), places(letters("ab")));
}

TEST_F(ViewTest, wordsThatMayBeParted_areNotShrunk) {
  platform.drawing.textSize = [](const std::string& text, const Font& font, const PointSize&) {
    std::size_t longest = 0;
    for (std::size_t at = 0; at < text.size();) {
      const std::size_t end = std::min(text.find('\n', at), text.size());
      longest = std::max(longest, end - at);
      at = end + 1;
    }
    return PointSize{static_cast<double>(longest) * font.size / 2, font.size};
  };
  const auto isShrunk = [&](const std::string& words) {
    const auto list = layOut(shrunkToFit(letters(words), 0.5), {50, 60}, platform.drawing);
    return std::holds_alternative<DrawnGroup>(list[0].content);
  };
  EXPECT_FALSE(isShrunk("Good morning"));
  EXPECT_FALSE(isShrunk("well-meaning")) << "after a hyphen";
  EXPECT_FALSE(isShrunk("今日もいい日に")) << "between East Asian letters";
  EXPECT_TRUE(isShrunk("Gutenmorgen"));
}

TEST_F(ViewTest, roomOfAText_isTheRoomItWasMeasuredIn) {
  const auto list = layOut(padded(letters("abc"), {1, 2, 3, 4}), {100, 60}, platform.drawing);
  EXPECT_EQ(std::get<DrawnText>(list[0].content).room, (PointSize{94, 56}));
}

} // namespace
} // namespace vitrelle
