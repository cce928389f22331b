#include "core/families/clock/Clock.h"

#include "core/platform/FatalError.h"

#include <cmath>
#include <numbers>

namespace vitrelle {

namespace {

constexpr double hour = 3600;

/// How long each hand is, in halves of the face's width.
double lengthOf(TickerType type) {
  return type == TickerType::hour ? 0.4 : 0.6;
}

double turns(TickerType type, double seconds) {
  if (type == TickerType::hour) return seconds / hour / 12;
  constexpr double beyondIntegers = 9223372036854775808.0; // 2^63
  if (!(seconds >= -beyondIntegers && seconds < beyondIntegers))
    fatalError("the time of a minute hand is no 64-bit integer");
  const double hours = std::trunc(seconds / hour);
  return (seconds - hours * hour) / 60 / 60;
}

} // namespace

Path Clock::path(const PointRect& box) const {
  const double length = lengthOf(model.type) * box.width / 2;
  const double angle =
      turns(model.type, model.timeInterval) * -2 * std::numbers::pi + std::numbers::pi / 2;
  const PathPoint middle{box.x + box.width / 2, box.y + box.height / 2};
  return {{PathCommand::move, PathCommand::line},
          {middle, {middle.x + length * std::cos(angle), middle.y - length * std::sin(angle)}}};
}

} // namespace vitrelle
