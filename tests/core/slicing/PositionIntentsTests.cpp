#include "core/slicing/PositionIntents.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace vitrelle {
namespace {

using Numbers = std::vector<std::int64_t>;

/// The numbers around all enumerations that make a value; each must be the value's own.
template <class Enumeration>
Numbers valuesOf() {
  Numbers values;
  for (std::int64_t raw = -70; raw < 140; ++raw) {
    const auto value = fromRawValue<Enumeration>(raw);
    if (!value) continue;
    EXPECT_EQ(static_cast<std::int64_t>(*value), raw);
    values.push_back(raw);
  }
  for (const std::int64_t far : {std::numeric_limits<std::int64_t>::min(),
                                 std::numeric_limits<std::int64_t>::max(), std::int64_t{1} << 32})
    EXPECT_FALSE(fromRawValue<Enumeration>(far)) << far;
  return values;
}

TEST(PositionIntents, rawValues_outsideOfTheirSetsAreRefused) {
  EXPECT_EQ(valuesOf<PositionEnumSmall>(), (Numbers{0, 1, 2, 3, 4, 5, 6}));
  EXPECT_EQ(valuesOf<PositionEnumMedium>(), (Numbers{0, 1, 2, 3}));
  EXPECT_EQ(valuesOf<PositionEnumLarge>(), (Numbers{0, 1, 2}));
  EXPECT_EQ(valuesOf<WidgetInformationOptions>(), (Numbers{0, 1, 2, 6, 7, 8, 9, 10}));
  EXPECT_EQ(valuesOf<PositionSmallIntentResponseCode>(), (Numbers{0, 1, 2, 3, 4, 5, 6}));
}

template <class Position>
std::string_view stemAt(WidgetFamily size, Position position) {
  return rawValue(slotAt(size, static_cast<std::int64_t>(position)));
}

TEST(PositionIntents, positions_leadToTheirSlots) {
  using enum WidgetFamily;
  EXPECT_EQ(stemAt(small, PositionEnumSmall::topLeft), "topLeftSmall");
  EXPECT_EQ(stemAt(small, PositionEnumSmall::middleRight), "midRightSmall");
  EXPECT_EQ(stemAt(small, PositionEnumSmall::bottomRight), "bottomRightSmall");
  EXPECT_EQ(stemAt(medium, PositionEnumMedium::middle), "midMedium");
  EXPECT_EQ(stemAt(medium, PositionEnumMedium::bottom), "bottomMedium");
  EXPECT_EQ(stemAt(large, PositionEnumLarge::top), "topLarge");
  EXPECT_EQ(stemAt(large, PositionEnumLarge::bottom), "bottomLarge");
  EXPECT_EQ(stemAt(large, PositionLargeIntent().position), "error");
  for (const std::int64_t none :
       {std::int64_t{-1}, std::int64_t{3}, std::numeric_limits<std::int64_t>::min(),
        std::numeric_limits<std::int64_t>::max()})
    EXPECT_EQ(slotAt(large, none), WidgetLocationImageNames::error) << none;
}

TEST(PositionIntents, answers_carryWhatTheyAreGiven) {
  const PositionMediumIntentHandling handler{
      .handlePosition =
          [](const PositionMediumIntent& intent, const auto& completion) {
            const bool known = intent.position != PositionEnumMedium::unknown;
            completion({.code = known ? PositionIntentResponseCode::success
                                      : PositionIntentResponseCode::failure,
                        .userActivity = std::nullopt});
          },
      .confirmPosition = [](const PositionMediumIntent&,
                            const auto& completion) { completion({}); }};
  std::vector<PositionIntentResponseCode> codes;
  const auto note = [&](const PositionMediumIntentResponse& response) {
    codes.push_back(response.code);
  };
  handler.handlePosition({.position = PositionEnumMedium::top}, note);
  handler.handlePosition({}, note);
  handler.confirmPosition({}, note);
  using enum PositionIntentResponseCode;
  EXPECT_EQ(codes, (std::vector{success, failure, unspecified}));

  const auto option = fromRawValue<WidgetInformationOptions>(6);
  ASSERT_TRUE(option);
  const auto settled = WidgetInformationOptionsResolutionResult::successWithResolved(*option);
  const auto open = WidgetInformationOptionsResolutionResult::confirmationRequiredWith(*option);
  EXPECT_EQ(settled.value, 6);
  EXPECT_EQ(open.value, 6);
  EXPECT_NE(settled, open);
}

} // namespace
} // namespace vitrelle
