#include "host/drawing/Rasteriser.h"

#include "core/drawing/Shapes.h"
#include "host/drawing/DrawingProcess.h"
#include "host/symbols/Symbols.h"
#include "tests/support/Fakes.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <array>
#include <cmath>
#include <limits>
#include <memory>
#include <vector>

namespace vitrelle::host {
namespace {

using Pixel = std::array<int, 4>;

class RasteriserTest : public testing::Test {
 protected:
  Bitmap render(const DisplayList& list, const PointRect& area, double scale = 1) {
    const auto image = drawing.render({&list, 1}, area, scale);
    EXPECT_TRUE(image);
    return image->bitmap().value();
  }
  static Pixel at(const Bitmap& bitmap, int x, int y) {
    const std::uint8_t* pixel = bitmap.row(y) + 4 * x;
    return {pixel[0], pixel[1], pixel[2], pixel[3]};
  }
  static DisplayItem rectangle(const PointRect& box, const PlatformColour& colour) {
    return {DrawnPath{.path = shapes::rectangle(box), .colour = colour}};
  }
  /// The sum of all alpha, in pixels.
  static double ink(const Bitmap& bitmap) {
    double sum = 0;
    for (int y = 0; y < bitmap.size.height; ++y) {
      for (int x = 0; x < bitmap.size.width; ++x)
        sum += at(bitmap, x, y)[3] / 255.0;
    }
    return sum;
  }

  Drawing drawing = makeDrawing(makeSymbols());
};

TEST_F(RasteriserTest, paths_fillTheirPixels) {
  const Bitmap bitmap = render({rectangle({1, 1, 2, 1}, {1, 0.5, 0, 1})}, {0, 0, 4, 3}, 2);
  EXPECT_EQ(bitmap.size, (PixelSize{8, 6}));
  EXPECT_EQ(at(bitmap, 2, 2), (Pixel{255, 128, 0, 255}));
  EXPECT_EQ(at(bitmap, 5, 3), (Pixel{255, 128, 0, 255}));
  EXPECT_EQ(at(bitmap, 6, 3)[3], 0);
  EXPECT_EQ(at(bitmap, 2, 4)[3], 0);
}

TEST_F(RasteriserTest, area_movesAndRoundsUp) {
  const Bitmap bitmap = render({rectangle({0, 0, 1, 1}, {1, 1, 1, 1})}, {-2, -1, 4.1, 3}, 1);
  EXPECT_EQ(bitmap.size, (PixelSize{5, 3}));
  EXPECT_EQ(at(bitmap, 2, 1)[3], 255);
  EXPECT_NEAR(ink(bitmap), 1, 0.01);
}

TEST_F(RasteriserTest, hopelessAreas_fail) {
  constexpr double nan = std::numeric_limits<double>::quiet_NaN();
  const DisplayList none;
  for (const PointRect& area :
       {PointRect{0, 0, 0, 5}, {0, 0, -4, 5}, {0, 0, nan, 5}, {0, 0, 1e9, 5}})
    EXPECT_FALSE(drawing.render({&none, 1}, area, 1));
}

TEST_F(RasteriserTest, strokes_haveTheirWidthCapsAndJoins) {
  const auto line = [&](LineCap cap) {
    return DisplayList{
        {DrawnPath{.path = {{PathCommand::move, PathCommand::line}, {{10, 10}, {30, 10}}},
                   .stroke = StrokeStyle{.width = 4, .cap = cap},
                   .colour = {1, 1, 1, 1}}}};
  };
  const PointRect area{0, 0, 40, 20};
  EXPECT_NEAR(ink(render(line(LineCap::butt), area)), 80, 0.5);
  EXPECT_NEAR(ink(render(line(LineCap::square), area)), 96, 0.5);
  EXPECT_NEAR(ink(render(line(LineCap::round), area)), 80 + std::acos(-1) * 4, 0.5);
}

TEST_F(RasteriserTest, gradients_goFromEndToEndAndOn) {
  const LinearGradient gradient{
      .stops = {{0, {1, 0, 0, 1}}, {0.5, {0, 1, 0, 1}}, {1, {0, 0, 1, 0}}},
      .start = {0, 10},
      .end = {0, 30}};
  const DrawnPath filled{.path = shapes::rectangle({0, 0, 4, 40}), .gradient = gradient};
  const Bitmap bitmap = render({{filled}}, {0, 0, 4, 40}, 2);
  EXPECT_EQ(at(bitmap, 1, 10), (Pixel{255, 0, 0, 255})) << "before the start";
  EXPECT_NEAR(at(bitmap, 1, 30)[0], 121, 3) << "the middle of the pixel is what counts";
  EXPECT_NEAR(at(bitmap, 1, 30)[1], 134, 3);
  EXPECT_NEAR(at(bitmap, 1, 40)[1], 255, 8);
  EXPECT_NEAR(at(bitmap, 1, 50)[3], 121, 3);
  EXPECT_EQ(at(bitmap, 1, 70)[3], 0) << "beyond the end";

  DrawnPath line{.path = {{PathCommand::move, PathCommand::line}, {{2, 0}, {2, 40}}},
                 .stroke = StrokeStyle{.width = 4},
                 .gradient = gradient};
  const Bitmap stroked = render({{line}}, {0, 0, 4, 40}, 2);
  for (const int y : {10, 30, 50})
    EXPECT_EQ(at(stroked, 1, y), at(bitmap, 1, y)) << y;
  // Turned with its group, a quarter clockwise: what was above is at the right.
  const Bitmap turned = render(
      {{DrawnGroup{.transform = {0, 1, -1, 0, 40, 0}, .items = {{filled}}}}}, {0, 0, 40, 4}, 2);
  EXPECT_EQ(at(turned, 69, 1), (Pixel{255, 0, 0, 255}));
  EXPECT_NEAR(at(turned, 49, 1)[0], 121, 3);

  line.gradient->stops.clear();
  EXPECT_EQ(ink(render({{line}}, {0, 0, 4, 40})), 0) << "without colours there is nothing";
}

TEST_F(RasteriserTest, symbols_areInTheirOwnColoursWhereAsked) {
  DrawnSymbol symbol{.name = "cloud.rain.fill", .colour = {1, 0, 0, 1}, .box = {0, 0, 16, 16}};
  const auto pixels = [&](int y) {
    const Bitmap bitmap = render({{symbol}}, {0, 0, 16, 16}, 3);
    return std::array{at(bitmap, 24, 15), at(bitmap, 19, y)};
  };
  constexpr Pixel red{255, 0, 0, 255};
  EXPECT_EQ(pixels(42), (std::array{red, red})) << "the cloud and a drop";
  symbol.ownColours = true;
  EXPECT_EQ(pixels(42)[0], (Pixel{255, 255, 255, 255}));
  EXPECT_GT(pixels(42)[1][2], pixels(42)[1][0]) << "a drop is blue";
  symbol.name = "square.fill";
  EXPECT_EQ(pixels(42)[0], red) << "a square has no colour of its own";
}

TEST_F(RasteriserTest, circle_isRound) {
  const DisplayList disc{
      {DrawnPath{.path = shapes::circle({0, 0, 40, 40}), .colour = {1, 1, 1, 1}}}};
  EXPECT_NEAR(ink(render(disc, {0, 0, 40, 40}, 3)), std::acos(-1) * 60 * 60, 20);
}

TEST_F(RasteriserTest, shadow_isSoftBelowTheContentAndMoved) {
  const DisplayList list{
      {DrawnGroup{.shadow = Shadow{.colour = {0, 0, 0, 0.5}, .radius = 3, .x = 10},
                  .items = {rectangle({40, 40, 20, 20}, {1, 1, 1, 1})}}}};
  const Bitmap bitmap = render(list, {0, 0, 120, 100});
  EXPECT_EQ(at(bitmap, 50, 50), (Pixel{255, 255, 255, 255}));
  EXPECT_NEAR(at(bitmap, 65, 50)[3], 127, 8) << "the shadow's middle is beside the square";
  EXPECT_NEAR(at(bitmap, 70, 50)[3], 64, 16) << "its edge is half as dark";
  EXPECT_EQ(at(bitmap, 95, 50)[3], 0);
  int before = 255;
  for (int x = 61; x < 95; ++x) { // no step that the eye would see
    const int now = at(bitmap, x, 50)[3];
    if (x > 61) {
      EXPECT_LE(before - now, 24) << x;
    }
    before = now;
  }
}

TEST_F(RasteriserTest, shadowAtTheEdge_isNotCutBeforeItIsBlurred) {
  const auto shadowed = [&](const PointRect& area) {
    const DisplayList list{{DrawnGroup{.shadow = Shadow{.colour = {0, 0, 0, 1}, .radius = 4},
                                       .items = {rectangle({0, 0, 10, 10}, {0, 0, 0, 1})}}}};
    return render(list, area);
  };
  const Bitmap wide = shadowed({-20, -20, 50, 50});
  const Bitmap narrow = shadowed({0, 0, 14, 14});
  EXPECT_EQ(at(narrow, 12, 5), at(wide, 32, 25));
}

TEST_F(RasteriserTest, groups_fadeAsOneAndTurn) {
  const DisplayList list{{DrawnGroup{
      .transform = {.x = 5},
      .opacity = 0.5,
      .items = {rectangle({0, 0, 4, 4}, {1, 0, 0, 1}), rectangle({2, 0, 4, 4}, {0, 0, 1, 1})}}}};
  const Bitmap bitmap = render(list, {0, 0, 20, 4});
  EXPECT_EQ(at(bitmap, 3, 1)[3], 0);
  EXPECT_NEAR(at(bitmap, 6, 1)[3], 128, 1);
  EXPECT_EQ(at(bitmap, 8, 1), (Pixel{0, 0, 255, at(bitmap, 6, 1)[3]})) << "nothing shines through";
}

TEST_F(RasteriserTest, groupsInGroups_areWhereTheyAreAlone) {
  const auto grouped = [](const Transform& transform, double opacity, DisplayList items) {
    return DisplayList{{DrawnGroup{.transform = transform, .opacity = opacity, .items = items}}};
  };
  const DisplayItem half = rectangle({0, 0, 4, 4}, {0, 1, 0, 0.5});
  const PointRect area{-2, 0, 30, 12};
  // One item is faded as it is painted, two as a picture of their own; which must look the same.
  const Bitmap one = render(grouped({.x = 9, .y = 3}, 0.5, {half}), area);
  const Bitmap two =
      render(grouped({.x = 9, .y = 3}, 0.5, {half, rectangle({9, 9, 0, 0}, {1, 0, 0, 1})}), area);
  const Bitmap nested =
      render(grouped({.x = 4}, 1, grouped({.x = 5}, 0.5, grouped({.y = 3}, 1, {half}))), area, 1);
  EXPECT_NEAR(at(one, 12, 4)[3], 64, 1);
  EXPECT_NEAR(ink(one), 4, 0.1);
  for (int y = 0; y < one.size.height; ++y) {
    for (int x = 0; x < one.size.width; ++x) {
      ASSERT_NEAR(at(one, x, y)[3], at(two, x, y)[3], 1) << x << ',' << y;
      ASSERT_EQ(at(one, x, y), at(nested, x, y)) << x << ',' << y;
    }
  }
}

TEST_F(RasteriserTest, shadowOfWhatIsNotSeen_fallsIntoThePicture) {
  const auto shadowed = [&](const PointRect& area) {
    const DisplayList list{
        {DrawnGroup{.shadow = Shadow{.colour = {0, 0, 0, 1}, .radius = 3, .x = 6},
                    .items = {rectangle({-14, 0, 10, 10}, {1, 1, 1, 1})}}}};
    return render({{DrawnGroup{.opacity = 0.5, .items = list}}}, area);
  };
  const Bitmap wide = shadowed({-40, -20, 80, 50});
  const Bitmap narrow = shadowed({0, 0, 20, 10});
  EXPECT_GT(at(narrow, 1, 5)[3], 30);
  for (int x = 0; x < 20; ++x)
    EXPECT_EQ(at(narrow, x, 5), at(wide, x + 40, 25)) << x;
}

TEST_F(RasteriserTest, images_fillTheirBoxAndOutline) {
  const DrawnImage image{.image = test::positionImage(10, 10), .box = {0, 0, 10, 10}};
  const Bitmap plain = render({{image}}, {0, 0, 10, 10});
  EXPECT_EQ(at(plain, 7, 3), (Pixel{7, 3, 0, 255}));
  DrawnImage round = image;
  round.outline = shapes::circle(image.box);
  const Bitmap disc = render({{round}}, {0, 0, 10, 10});
  EXPECT_EQ(at(disc, 0, 0)[3], 0);
  EXPECT_EQ(at(disc, 5, 5)[3], 255);
}

TEST_F(RasteriserTest, imageThatIsShrunk_countsAllItsPixels) {
  const auto bytes = std::make_shared<std::vector<std::uint8_t>>();
  for (int i = 0; i < 160 * 160; ++i) { // a white column in eight
    const std::uint8_t level = i % 8 == 0 ? 240 : 0;
    bytes->insert(bytes->end(), {level, level, level, 255});
  }
  const Image image(
      Bitmap{.size = {160, 160}, .bytesPerRow = 640, .pixels = bytes->data(), .owner = bytes});
  const Bitmap bitmap =
      render({{DrawnImage{.image = image, .box = {0, 0, 20, 20}}}}, {0, 0, 20, 20});
  for (int x = 2; x < 18; ++x)
    EXPECT_NEAR(at(bitmap, x, 9)[0], 30, 5) << x;
}

TEST_F(RasteriserTest, imageWhoseRowsLieAnyhow_isDrawnAsItIs) {
  const auto bytes = std::make_shared<std::vector<std::uint8_t>>();
  bytes->push_back(0); // then rows of two pixels, three bytes apart
  for (int y = 0; y < 2; ++y) {
    for (int x = 0; x < 2; ++x)
      bytes->insert(bytes->end(), {static_cast<std::uint8_t>(10 * x), 100, 0, 255});
    bytes->insert(bytes->end(), 3, std::uint8_t{77});
  }
  const Image image(
      Bitmap{.size = {2, 2}, .bytesPerRow = 11, .pixels = bytes->data() + 1, .owner = bytes});
  const Bitmap bitmap = render({{DrawnImage{.image = image, .box = {0, 0, 2, 2}}}}, {0, 0, 2, 2});
  for (const int y : {0, 1}) {
    EXPECT_EQ(at(bitmap, 0, y), (Pixel{0, 100, 0, 255})) << y;
    EXPECT_EQ(at(bitmap, 1, y), (Pixel{10, 100, 0, 255})) << y;
  }
}

TEST_F(RasteriserTest, text_hasTheSameShapeAtEveryScale) {
  const DisplayList list{{DrawnText{.text = "Vitrelle",
                                    .font = {.size = 30},
                                    .colour = {1, 1, 1, 1},
                                    .box = {4, 4, 120, 40},
                                    .room = {120, 40}}}};
  const PointRect area{0, 0, 130, 50};
  const double once = ink(render(list, area, 1));
  EXPECT_GT(once, 300);
  for (const int scale : {2, 3})
    EXPECT_NEAR(ink(render(list, area, scale)) / (scale * scale), once, 0.02 * once) << scale;
}

TEST_F(RasteriserTest, lastBaseline_isWhereTheLastLettersStand) {
  const Font font{.size = 40};
  for (const char* words : {"x", "x\nx", "x y x x"}) {
    const PointSize room{50, 300};
    const DisplayList list{{DrawnText{.text = words,
                                      .font = font,
                                      .colour = {1, 1, 1, 1},
                                      .box = {0, 0, 50, 300},
                                      .room = room}}};
    const Bitmap bitmap = render(list, {0, 0, 50, 300});
    int lowest = 299;
    while (lowest > 0 && at(bitmap, 10, lowest)[3] < 128 && at(bitmap, 4, lowest)[3] < 128)
      --lowest;
    EXPECT_NEAR(drawing.lastBaseline(words, font, room), lowest + 1, 1) << words;
  }
}

TEST_F(RasteriserTest, emoji_areInColour) {
  const DisplayList list{{DrawnText{.text = "\U0001F389",
                                    .font = {.size = 30},
                                    .colour = {1, 1, 1, 1},
                                    .box = {0, 0, 50, 40},
                                    .room = {50, 40}}}};
  const Bitmap bitmap = render(list, {0, 0, 50, 40}, 2);
  int coloured = 0;
  for (int y = 0; y < bitmap.size.height; ++y) {
    for (int x = 0; x < bitmap.size.width; ++x) {
      const Pixel pixel = at(bitmap, x, y);
      coloured += pixel[3] > 128 && std::abs(pixel[0] - pixel[2]) > 60 ? 1 : 0;
    }
  }
  EXPECT_GT(coloured, 200);
}

TEST_F(RasteriserTest, layers_lieOverEachOther) {
  const std::array<DisplayList, 2> layers{DisplayList{rectangle({0, 0, 4, 4}, {0, 0, 1, 1})},
                                          DisplayList{rectangle({0, 0, 2, 4}, {1, 0, 0, 0.5})}};
  const Bitmap bitmap = drawing.render(layers, {0, 0, 4, 4}, 1)->bitmap().value();
  EXPECT_EQ(at(bitmap, 3, 0), (Pixel{0, 0, 255, 255}));
  EXPECT_NEAR(at(bitmap, 0, 0)[0], 128, 1);
  EXPECT_NEAR(at(bitmap, 0, 0)[2], 127, 1);
}

} // namespace
} // namespace vitrelle::host

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const QTemporaryDir data; // for fonts that a test installs
  qputenv("XDG_DATA_HOME", data.path().toLocal8Bit());
  const vitrelle::host::DrawingProcess drawing;
  return RUN_ALL_TESTS();
}
