#include "core/store/ColourComponents.h"

#include "core/store/Decimal.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace vitrelle {

namespace {

/// The whole text as a number; no blanks, and nothing that is not finite.
std::optional<double> number(std::string_view text) {
  double value = 0;
  const char* const end = text.data() + text.size();
  const auto [behind, error] = std::from_chars(text.data(), end, value);
  if (error != std::errc() || behind != end || !std::isfinite(value)) return std::nullopt;
  return value;
}

} // namespace

std::string colourComponents(const PlatformColour& colour) {
  return shortestDecimal(colour.red) + ',' + shortestDecimal(colour.green) + ',' +
         shortestDecimal(colour.blue) + ',' + shortestDecimal(colour.alpha);
}

std::optional<PlatformColour> parseColourComponents(std::string_view text) {
  std::array<double, 4> components{};
  for (std::size_t i = 0; i < components.size(); ++i) {
    const std::size_t comma = text.find(',');
    const auto component = number(text.substr(0, comma));
    const bool isLast = i + 1 == components.size();
    if (!component || (comma == std::string_view::npos && !isLast)) return std::nullopt;
    components.at(i) = std::clamp(*component, 0.0, 1.0);
    if (!isLast) text.remove_prefix(comma + 1);
  }
  return PlatformColour{components[0], components[1], components[2], components[3]};
}

} // namespace vitrelle
