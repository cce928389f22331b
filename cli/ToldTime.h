// Moments on the command line.
#pragma once

#include "core/platform/Defaults.h"

#include <optional>
#include <string>

namespace vitrelle::cli {

struct ToldTime {
  Date time;
  /// Whether it is what clocks on the wall show in the current time zone, told as if it were UTC.
  bool onTheWall = false;
  bool operator==(const ToldTime&) const = default;
};

/// "2026-11-21T13:30:00", where the seconds may be left out, and a "Z" or an offset such as
/// "+05:45" makes it a moment of UTC or so far ahead of it.
std::optional<ToldTime> parseTime(const std::string& text);

} // namespace vitrelle::cli
