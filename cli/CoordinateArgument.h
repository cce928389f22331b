// Positions as they are told on the command line.
#pragma once

#include "core/platform/Location.h"

#include <optional>
#include <string>

namespace vitrelle::cli {

/// "52.52,13.4": degrees, north and east positive, without blanks. Nothing for other texts and for
/// what lies beyond a pole or the 180th meridian.
std::optional<Coordinate> parseCoordinate(const std::string& text);

} // namespace vitrelle::cli
