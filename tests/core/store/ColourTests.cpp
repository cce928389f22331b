#include "core/store/Colour.h"

#include <gtest/gtest.h>

namespace vitrelle {
namespace {

constexpr Colour black{0, 0, 0, 1};

float byte(int value) {
  return static_cast<float>(value / 255.0);
}

TEST(Colour, parse_takesSixOrEightCharactersAndReadsAsFarAsDigitsGo) {
  struct Case {
    const char* text;
    Colour colour;
  };
  const Colour pink{1, 0, byte(128)};
  const Case cases[] = {
      {"FF0080", pink},
      {"#ff0080", pink},
      {"f#f0#080#", pink},
      {" FF0080\n", pink},
      {"\xC2\xA0\t\xE3\x80\x80#FF0080\xE2\x80\xA9\r\n", pink},
      {"FF008080", {1, 0, byte(128), byte(128)}},
      {"00000000", {0, 0, 0, 0}},
      {"", black},
      {"###", black},
      {"FFF", black},
      {"FFFFFFF", black},
      {"FFFFFFFFF", black},
      {"FFFFFFFFFFFFFFFFFFFF", black},
      {"GG0000", black},
      {"-F0000", black},
      {"F0Z000", {0, 0, byte(0xF0)}},
      {"0x1234", {0, byte(0x12), byte(0x34)}},
      {"0Xffff80", {0, 1, byte(0xFF), byte(0x80)}},
      {"0x0x12", black},
      {"# FFF80", {byte(0x0F), 1, byte(0x80)}}, // white space inside counts, and is skipped
      {"FFFFF\xC3\xA9", {byte(0x0F), 1, 1}},    // six characters in seven bytes
      {"12345\xF0\x9F\x8E\xA8", {byte(0x01), byte(0x23), byte(0x45)}}, // in nine
  };
  for (const Case& item : cases)
    EXPECT_EQ(Colour::parse(item.text), item.colour) << item.text;
}

TEST(Colour, hex_roundsToTheNearestByteAndDropsAlphaUnlessAskedFor) {
  struct Case {
    Colour colour;
    const char* digits;
    const char* withAlpha;
  };
  const Case cases[] = {
      {colours::white, "FFFFFF", "FFFFFFFF"},
      {colours::accent, "63E6E3", "63E6E3FF"}, // 99.45, 229.5, 226.95
      {colours::batteryGrey, "2B2B2E", "2B2B2EFF"},
      {{0.5F, 0, 1, 0.5F}, "8000FF", "8000FF80"}, // 127.5 goes away from zero
      {{0.001F, 0.002F, 0.003F, 0}, "000101", "00010100"},
  };
  for (const Case& item : cases) {
    EXPECT_EQ(item.colour.hex(false), item.digits);
    EXPECT_EQ(item.colour.hex(true), item.withAlpha);
  }
  EXPECT_EQ(Colour::unresolved().hex(true), std::nullopt);
}

TEST(Colour, everyByte_survivesStoring) {
  for (int value = 0; value < 256; ++value) {
    const Colour colour{byte(value), byte(255 - value), byte(value), byte(value)};
    EXPECT_EQ(Colour::parse(colour.hex(true).value_or("")), colour) << value;
  }
}

} // namespace
} // namespace vitrelle
