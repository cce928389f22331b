#include "core/drawing/Describe.h"

#include "core/drawing/Shapes.h"
#include "tests/support/Fakes.h"

#include <gtest/gtest.h>

namespace vitrelle {
namespace {

TEST(Describe, everyItem_isALine) {
  const DisplayList list{
      {DrawnPath{.path = shapes::rectangle({0, 0.5, 2, 1}),
                 .rule = FillRule::evenOdd,
                 .colour = {1, 0.5, 0, 0.25}}},
      {DrawnGroup{
          .transform = {.x = 3},
          .opacity = 0.5,
          .shadow = Shadow{.colour = {0, 0, 0, 0.33}, .radius = 5, .x = 1, .y = 2},
          .items = {{DrawnText{.text = "say \"hi\"\n",
                               .font = {.name = "Inter-Bold", .size = 18, .evenDigits = true},
                               .alignment = TextAlignment::centre,
                               .colour = {1, 1, 1, 1},
                               .box = {1, 2, 30, 20},
                               .room = {40, 20}}}}}},
      {DrawnPath{.path = {{PathCommand::move, PathCommand::line}, {{0, 0}, {1, 1.0 / 3}}},
                 .stroke = StrokeStyle{.width = 2, .cap = LineCap::round}}},
      {DrawnPath{.path = {{PathCommand::move}, {{0, 0}}},
                 .gradient = LinearGradient{.stops = {{0, {1, 1, 1, 0.5}}, {0.75, {1, 0, 0, 1}}},
                                            .end = {0, 20}}}},
      {DrawnSymbol{.name = "link", .weight = 600, .colour = {0, 1, 0, 1}, .box = {0, 0, 8, 8}}},
      {DrawnSymbol{.name = "sun.max", .box = {0, 0, 8, 8}, .ownColours = true}},
      {DrawnImage{.image = test::positionImage(4, 3), .box = {0, 0, -0.0001, 6}}}};
  EXPECT_EQ(describe(list),
            "fill FF8000 alpha 0.25 even-odd M 0 0.5 L 2 0.5 L 2 1.5 L 0 1.5 Z\n"
            "group transform 1 0 0 1 3 0 shadow 000000 alpha 0.33 radius 5 offset 1 2 opacity 0.5\n"
            "  text \"say \\\"hi\\\"\\n\" in \"Inter-Bold\" 18 even digits centred FFFFFF at 1 2 "
            "size 30 20 "
            "room 40 20\n"
            "stroke 000000 width 2 round miter 10 M 0 0 L 1 0.333\n"
            "fill gradient from 0 0 to 0 20, FFFFFF alpha 0.5 at 0, FF0000 at 0.75 M 0 0\n"
            "symbol \"link\" weight 600 00FF00 at 0 0 size 8 8\n"
            "symbol \"sun.max\" own colours else 000000 at 0 0 size 8 8\n"
            "image 4 3 at 0 0 size 0 6\n");
}

} // namespace
} // namespace vitrelle
