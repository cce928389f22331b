#include "core/colour/ColourMap.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace vitrelle {
namespace {

using Color = MMCQ::Color;

/// Packed pixels, put together one by one.
struct Pixels {
  std::vector<std::uint8_t> bytes;

  Pixels& add(Color colour, int times = 1, std::uint8_t alpha = 255) {
    for (int i = 0; i < times; ++i) {
      bytes.insert(bytes.end(), {alpha, colour.b, colour.g, colour.r});
    }
    return *this;
  }
};

Pixels noise(int count) {
  std::mt19937 random(7);
  const auto sample = [&] { return static_cast<std::uint8_t>(random() % 256); };
  Pixels pixels;
  for (int i = 0; i < count; ++i)
    pixels.add({sample(), sample(), sample()});
  return pixels;
}

std::vector<Color> palette(const Pixels& pixels, std::int64_t colorCount, std::int64_t quality = 1,
                           bool ignoreWhite = true) {
  const auto map = MMCQ::quantize(pixels.bytes, quality, ignoreWhite, colorCount);
  return map ? map->paletteColors() : std::vector<Color>{};
}

const std::vector<Color> justWhite = {{255, 255, 255}};

TEST(MMCQ, colourCounts_giveTheirPaletteSizes) {
  const Pixels pixels = noise(200'000);
  const struct {
    std::int64_t colorCount;
    std::size_t colours;
  } cases[] = {{-1, 0}, {0, 0}, {1, 0},   {2, 3},     {3, 4},     {4, 4},  {5, 5},
               {7, 7},  {8, 7}, {16, 15}, {255, 254}, {256, 255}, {257, 0}};
  for (const auto& [colorCount, colours] : cases) {
    EXPECT_EQ(palette(pixels, colorCount).size(), colours) << colorCount << " colours";
  }
}

TEST(MMCQ, boxes_partThePixelsAmongThemInFallingOrder) {
  const int count = 50'000;
  const auto map = MMCQ::quantize(noise(count).bytes, 1, false, 16);
  ASSERT_TRUE(map);
  std::int64_t sum = 0;
  std::int64_t last = std::numeric_limits<std::int64_t>::max();
  for (const MMCQ::VBox& box : map->vboxes) {
    sum += box.count();
    EXPECT_LE(box.count() * box.volume(), last);
    last = box.count() * box.volume();
    const Color mean = box.average();
    EXPECT_TRUE(mean.r >> 3 >= box.rMin && mean.r >> 3 <= box.rMax);
    EXPECT_TRUE(mean.g >> 3 >= box.gMin && mean.g >> 3 <= box.gMax);
    EXPECT_TRUE(mean.b >> 3 >= box.bMin && mean.b >> 3 <= box.bMax);
  }
  EXPECT_EQ(sum, count);
}

TEST(MMCQ, noPixels_giveNothing) {
  EXPECT_FALSE(MMCQ::quantize(std::span<const std::uint8_t>{}, 1, true, 5));
}

TEST(MMCQ, nothingThatCounts_givesOneWhiteColour) {
  EXPECT_EQ(palette(Pixels().add({9, 9, 9}, 40, 124), 5), justWhite) << "transparent";
  EXPECT_EQ(palette(Pixels().add({251, 255, 252}, 40), 5), justWhite) << "near white";
  EXPECT_EQ(palette(Pixels().add({9, 9, 9}, 40), 5, -1), justWhite) << "negative quality";
  EXPECT_EQ(palette(Pixels{{255, 9, 9}}, 5), justWhite) << "three bytes";
}

TEST(MMCQ, onePixel_isNeverCut) {
  EXPECT_EQ(palette(Pixels().add({200, 100, 50}), 256), (std::vector<Color>{{204, 100, 52}}));
}

TEST(MMCQ, oneColour_comesFirstAsTheMiddleOfItsCellAndThenEmptyBoxes) {
  const Color empty{208, 100, 52};
  EXPECT_EQ(palette(Pixels().add({200, 100, 50}, 100), 5),
            (std::vector<Color>{{204, 100, 52}, empty, empty, empty, empty}));
  // At the top of the scale the empty box's middle would be 256.
  EXPECT_EQ(palette(Pixels().add({255, 0, 0}, 2), 2).back(), (Color{255, 4, 4}));
}

TEST(MMCQ, pixelsAtTheLimits_countOrNot) {
  const Color ink{64, 64, 64};
  const struct {
    const char* name;
    Color colour;
    std::uint8_t alpha;
    bool ignoreWhite;
    bool counts;
  } cases[] = {
      {"alpha 125", ink, 125, true, true},
      {"alpha 124", ink, 124, true, false},
      {"alpha 128", ink, 128, true, true},
      {"alpha 0", ink, 0, true, false},
      {"alpha 127", ink, 127, true, true},
      {"all at 251", {251, 251, 251}, 255, true, false},
      {"red at 250", {250, 251, 251}, 255, true, true},
      {"green at 250", {251, 250, 251}, 255, true, true},
      {"blue at 250", {251, 251, 250}, 255, true, true},
      {"samples of 123 to 127", {123, 125, 127}, 255, true, true},
      {"white kept", {255, 255, 255}, 255, false, true},
      {"white kept, transparent", {255, 255, 255}, 124, false, false},
  };
  for (const auto& c : cases) {
    // Alone, in a plain block and in a mixed one, which are counted in different ways.
    for (const int times : {1, 64, 67}) {
      const auto pixels = Pixels().add(c.colour, times, c.alpha).add(ink, times == 67 ? 61 : 0, 0);
      const Sampling sampling{.stride = 1, .ignoreWhite = c.ignoreWhite};
      const auto histogram = histogramOfPixels(pixels.bytes, sampling);
      const auto cell = cellIndex(c.colour.r >> 3, c.colour.g >> 3, c.colour.b >> 3);
      EXPECT_EQ(histogram[cell], c.counts ? times : 0) << c.name << ", " << times << " times";
    }
  }
}

TEST(MMCQ, quality_isTheDistanceBetweenSamples) {
  Pixels pixels;
  for (int i = 0; i < 10; ++i)
    pixels.add({static_cast<std::uint8_t>(i * 8), 0, 0});
  const auto sampled = [&](std::int64_t quality) {
    std::vector<int> reds;
    const auto histogram = histogramOfPixels(pixels.bytes, {.stride = quality});
    for (int red = 0; red < coordinatesPerChannel; ++red) {
      if (histogram[cellIndex(red, 0, 0)] == 1) reds.push_back(red);
    }
    return reds;
  };
  EXPECT_EQ(sampled(3), (std::vector{0, 3, 6, 9}));
  EXPECT_EQ(sampled(9), (std::vector{0, 9}));
  EXPECT_EQ(sampled(10), (std::vector{0}));
  EXPECT_EQ(sampled(std::numeric_limits<std::int64_t>::max()), (std::vector{0}));
  EXPECT_EQ(sampled(std::numeric_limits<std::int64_t>::min()), (std::vector<int>{}));
}

TEST(MMCQ, longStretchesOfPixels_areAllCounted) {
  // Lengths around the sizes of blocks, of one colour and of several.
  for (const int length : {63, 64, 65, 127, 129, 1000}) {
    auto pixels = Pixels().add({8, 16, 24}, length);
    for (int i = 0; i < length; ++i)
      pixels.add({static_cast<std::uint8_t>(i % 7 * 8), 80, 80});
    const auto histogram = histogramOfPixels(pixels.bytes, {});
    EXPECT_EQ(histogram[cellIndex(1, 2, 3)], length) << length;
    for (int red = 0; red < 7; ++red) {
      EXPECT_EQ(histogram[cellIndex(red, 10, 10)], (length + 6 - red) / 7) << length << ", " << red;
    }
  }
}

TEST(MMCQ, twoColours_partAtTheMiddleOfTheLongerSide) {
  // Red 0 and red 31, equally often: the median is 31, and the cut falls at 14, from its left side.
  auto map = MMCQ::quantize(Pixels().add({0, 0, 0}, 50).add({255, 0, 0}, 50).bytes, 1, true, 2);
  ASSERT_TRUE(map);
  std::vector<std::pair<int, int>> bounds;
  for (const auto& box : map->vboxes)
    bounds.emplace_back(box.rMin, box.rMax);
  // Equal counts: the larger volume comes last in the queue, is cut again, and as all of it lies at
  // its far end, the cut moves there and leaves nothing for the other half.
  EXPECT_EQ(bounds, (std::vector<std::pair<int, int>>{{15, 31}, {0, 14}, {32, 31}}));
}

TEST(MMCQ, channelsOfEqualWidth_areCutRedBeforeGreenBeforeBlue) {
  const struct {
    Color far;
    bool redCut, greenCut, blueCut;
  } cases[] = {{{248, 248, 248}, true, false, false},
               {{240, 248, 248}, false, true, false},
               {{240, 240, 248}, false, false, true}};
  for (const auto& c : cases) {
    const auto histogram = std::make_shared<const ColourHistogram>(
        histogramOfPixels(Pixels().add({0, 0, 0}, 8).add(c.far, 8).bytes, {}));
    MMCQ::VBox box(histogram);
    box.rMin = box.gMin = box.bMin = 0;
    box.rMax = c.far.r >> 3;
    box.gMax = c.far.g >> 3;
    box.bMax = c.far.b >> 3;
    const auto halves = box.cut();
    ASSERT_TRUE(halves);
    EXPECT_EQ(halves->first.rMax != box.rMax, c.redCut) << testing::PrintToString(c.far);
    EXPECT_EQ(halves->first.gMax != box.gMax, c.greenCut) << testing::PrintToString(c.far);
    EXPECT_EQ(halves->first.bMax != box.bMax, c.blueCut) << testing::PrintToString(c.far);
  }
}

TEST(MMCQ, boxOfOneCell_cutsIntoItselfAndAnEmptyOne) {
  const auto histogram = std::make_shared<const ColourHistogram>(
      histogramOfPixels(Pixels().add({255, 255, 255}, 2).bytes, {}));
  MMCQ::VBox box(histogram);
  box.rMin = box.rMax = box.gMin = box.gMax = box.bMin = box.bMax = 31;
  const auto halves = box.cut();
  ASSERT_TRUE(halves);
  EXPECT_EQ(halves->first.count(), 2);
  EXPECT_EQ(halves->second.rMin, 32);
  EXPECT_EQ(halves->second.count(), 0);
  EXPECT_EQ(halves->second.volume(), 0);
  EXPECT_EQ(halves->second.average(), (Color{255, 252, 252}));
}

TEST(VBox, copies_forgetWhatWasComputed) {
  const auto histogram = std::make_shared<const ColourHistogram>(
      histogramOfPixels(Pixels().add({0, 0, 0}, 3).add({80, 0, 0}, 4).bytes, {}));
  MMCQ::VBox box(histogram);
  box.rMin = box.gMin = box.gMax = box.bMin = box.bMax = 0;
  box.rMax = 31;
  EXPECT_EQ(box.count(), 7);
  EXPECT_EQ(box.volume(), 32);
  EXPECT_EQ(box.average(), (Color{static_cast<std::uint8_t>((3 * 4 + 4 * 84) / 7), 4, 4}));

  MMCQ::VBox copy(box);
  copy.rMax = 5;
  EXPECT_EQ(copy.count(), 3);
  EXPECT_EQ(copy.volume(), 6);
  EXPECT_EQ(copy.average(), (Color{4, 4, 4}));

  box.rMax = 5;
  EXPECT_EQ(box.volume(), 32) << "kept";
  EXPECT_EQ(box.volume(true), 6) << "forced";
}

TEST(ColorMap, nearestColour_isTheFirstAtTheLeastSumOfDifferences) {
  EXPECT_EQ(MMCQ::ColorMap().nearestColor({200, 200, 200}), (Color{0, 0, 0}));

  const auto histogram = std::make_shared<const ColourHistogram>(histogramCells);
  const auto cell = [&](std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
    MMCQ::VBox box(histogram);
    box.rMin = box.rMax = red;
    box.gMin = box.gMax = green;
    box.bMin = box.bMax = blue;
    return box;
  };
  MMCQ::ColorMap map;
  map.vboxes.push_back(cell(0, 0, 0));
  map.vboxes.push_back(cell(5, 5, 7));
  const Color first{4, 4, 4};
  const Color second{44, 44, 60};
  ASSERT_EQ(map.paletteColors(), (std::vector{first, second}));
  EXPECT_EQ(map.nearestColor({24, 24, 33}), second);
  EXPECT_EQ(map.nearestColor({24, 24, 32}), first) << "a tie";
  EXPECT_EQ(map.nearestColor({4, 4, 64}), first) << "60 against 84, though the squares say second";
}

TEST(MMCQDeathTest, qualityOfZero_isFatal) {
  EXPECT_DEATH(palette(Pixels().add({1, 2, 3}), 5, 0), "Fatal error: a sampling stride of 0");
}

} // namespace
} // namespace vitrelle
