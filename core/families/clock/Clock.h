// A hand of the analog clock.
#pragma once

#include "core/platform/Geometry.h"
#include "core/platform/Path.h"

namespace vitrelle {

enum class TickerType { hour = 0, minute = 1 };

struct ClockTickerModel {
  TickerType type = TickerType::hour;
  double timeInterval = 0; ///< seconds since midnight
  double tickScale = 0;    ///< kept with the hand; its length does not depend on it
};

struct Clock {
  ClockTickerModel model;

  /// From the middle of the box outward: upward at midnight, and clockwise from there. A minute
  /// hand of a time that no 64-bit integer holds is a fatal error.
  Path path(const PointRect& box) const;
};

} // namespace vitrelle
