#include "core/store/Key.h"

#include <gtest/gtest.h>

#include <limits>

namespace vitrelle {
namespace {

constexpr std::int64_t highest = std::numeric_limits<std::int64_t>::max();
constexpr double infinity = std::numeric_limits<double>::infinity();

TEST(DecodeStored, numbers_bridgeWhereNothingIsLost) {
  struct Case {
    StoreValue stored;
    std::optional<std::int64_t> asInt;
    std::optional<double> asDouble;
    std::optional<bool> asBool;
  };
  const Case cases[] = {
      {std::int64_t{0}, 0, 0.0, false},
      {std::int64_t{1}, 1, 1.0, true},
      {std::int64_t{2}, 2, 2.0, {}},
      {highest, highest, {}, {}},
      {std::int64_t{-1} << 53, std::int64_t{-1} << 53, -0x1p53, {}},
      {0.0, 0, 0.0, false},
      {1.0, 1, 1.0, true},
      {18.0, 18, 18.0, {}},
      {18.5, {}, 18.5, {}},
      {-0x1p63, std::numeric_limits<std::int64_t>::min(), -0x1p63, {}},
      {0x1p63, {}, 0x1p63, {}},
      {infinity, {}, infinity, {}},
      {true, 1, {}, true},
      {false, 0, {}, false},
      {std::string("1"), {}, {}, {}},
      {Data{1}, {}, {}, {}},
      {Date{1}, {}, {}, {}},
  };
  for (std::size_t i = 0; i < std::size(cases); ++i) {
    EXPECT_EQ(decodeStored<std::int64_t>(cases[i].stored), cases[i].asInt) << "case " << i;
    EXPECT_EQ(decodeStored<double>(cases[i].stored), cases[i].asDouble) << "case " << i;
    EXPECT_EQ(decodeStored<bool>(cases[i].stored), cases[i].asBool) << "case " << i;
  }
  EXPECT_EQ(decodeStored<std::int64_t>(std::numeric_limits<double>::quiet_NaN()), std::nullopt);
}

TEST(DecodeStored, otherKinds_readOnlyAsThemselves) {
  EXPECT_EQ(decodeStored<std::string>(std::string("a")), "a");
  EXPECT_EQ(decodeStored<std::string>(Data{'a'}), std::nullopt);
  EXPECT_EQ(decodeStored<Data>(Data{'a'}), Data{'a'});
  EXPECT_EQ(decodeStored<Data>(std::string("a")), std::nullopt);
  EXPECT_EQ(decodeStored<Date>(Date{2.5}), Date{2.5});
  EXPECT_EQ(decodeStored<Date>(2.5), std::nullopt);
}

} // namespace
} // namespace vitrelle
