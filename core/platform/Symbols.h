// The outlines of the system's symbols by name. The system's own symbol font does not ship, so a
// host finds the nearest picture it has, and says how near it is.
#pragma once

#include "core/platform/Path.h"
#include "core/platform/PlatformColour.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace vitrelle {

/// To be filled in one colour. It lies within its box; y points down.
struct SymbolOutline {
  Path path;
  FillRule rule = FillRule::nonZero;
  double width = 16;
  double height = 16;
};

/// A thing in a symbol, such as the sun behind a cloud.
struct SymbolPart {
  SymbolOutline outline;                               ///< in the box of the whole symbol
  std::optional<PlatformColour> colour = std::nullopt; ///< its own, if it has one
};

/// From the nearest to the farthest.
enum class SymbolMatch : std::uint8_t {
  alias,       ///< one picture stands for the name
  composition, ///< put together, such as a glyph knocked out of a disc
  drawing,     ///< drawn for the name, of nothing else
  stripped,    ///< the picture of the name without its badge, slash, fill or enclosing shape
  fallback,    ///< nothing known: a square with the first letter
};

struct Symbols {
  /// Any name has an outline.
  std::function<SymbolOutline(const std::string& name)> outline;
  /// That outline taken apart, from back to front; one part where it has no colours of its own.
  std::function<std::vector<SymbolPart>(const std::string& name)> parts;
  std::function<SymbolMatch(const std::string& name)> match;
};

} // namespace vitrelle
