#include "cli/CoordinateArgument.h"

#include "cli/Numbers.h"

#include <cstddef>

namespace vitrelle::cli {

namespace {

/// Also those between -1 and 0.
std::optional<double> degrees(const std::string& text, double most) {
  const bool isNegative = text.starts_with('-');
  const auto size = decimalNumber(text.substr(isNegative ? 1 : 0));
  if (!size || *size < 0 || *size > most) return std::nullopt;
  return isNegative && *size > 0 ? -*size : *size;
}

} // namespace

std::optional<Coordinate> parseCoordinate(const std::string& text) {
  const std::size_t comma = text.find(',');
  if (comma == std::string::npos) return std::nullopt;
  const auto latitude = degrees(text.substr(0, comma), 90);
  const auto longitude = degrees(text.substr(comma + 1), 180);
  if (!latitude || !longitude) return std::nullopt;
  return Coordinate{*latitude, *longitude};
}

} // namespace vitrelle::cli
