#include "core/store/ColourComponents.h"

#include <gtest/gtest.h>

#include <cmath>

namespace vitrelle {
namespace {

TEST(ColourComponents, text_isTheShortestThatReadsBackAsTheSameColour) {
  EXPECT_EQ(colourComponents({1, 0.5, 0.25, 1}), "1.0,0.5,0.25,1.0");
  EXPECT_EQ(colourComponents({0, 0.1, 2.0 / 3, 0.4}), "0.0,0.1,0.6666666666666666,0.4");
  for (int value = 0; value < 256; ++value) {
    const PlatformColour colour{value / 255.0, std::nextafter(value / 255.0, 0.5), 1e-9 * value,
                                1 - value / 255.0};
    EXPECT_EQ(parseColourComponents(colourComponents(colour)), colour) << value;
  }
}

TEST(ColourComponents, fourNumbers_areTakenAndAllElseIsNoColour) {
  const struct {
    const char* text;
    PlatformColour colour;
  } good[] = {
      {"0.1,0.2,0.3,0.4", {0.1, 0.2, 0.3, 0.4}},
      {"1,0,1e-2,1", {1, 0, 0.01, 1}},
      {"0,0,0,1,rest", {0, 0, 0, 1}},
      {"2.0,-1.0,0.5,1e300", {1, 0, 0.5, 1}},
  };
  for (const auto& [text, colour] : good)
    EXPECT_EQ(parseColourComponents(text), colour) << text;
  for (const char* text :
       {"", ",", "0.1,0.2", "0.1,0.2,0.3", "0.1,0.2,0.3,", "a,b,c,d", "0.1,,0.3,0.4",
        "0.1, 0.2,0.3,0.4", "0.1,0.2,0.3,0.4 ", "0.1,0.2,0.3,nan", "inf,0,0,1", "1e999,0,0,1",
        "0.1;0.2;0.3;0.4", "FF8000", ",0.1,0.2,0.3,0.4", "0.1,0.2x,0.3,0.4"})
    EXPECT_EQ(parseColourComponents(text), std::nullopt) << text;
}

} // namespace
} // namespace vitrelle
