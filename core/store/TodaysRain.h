// The rain of the next hours as the store holds it: a JSON array that the widgets read.
#pragma once

#include "core/platform/Data.h"
#include "core/platform/Defaults.h"
#include "core/platform/Result.h"

#include <optional>
#include <string>
#include <vector>

namespace vitrelle {

struct TodaysRain {
  Date hour = {};
  double max = 0; ///< the height of the hour's bar
  std::string id = {};
  bool operator==(const TodaysRain&) const = default;
};

/// Objects of "hour" (seconds since the reference date), "max" and "id". Fails on a number that
/// JSON has no form for.
Result<Data> encodeRain(const std::vector<TodaysRain>& hours);

/// Nothing unless every object has all three in their right types.
std::optional<std::vector<TodaysRain>> decodeRain(const Data& json);

} // namespace vitrelle
