// The outlines of the system's symbols by name. The system's own symbol font does not ship, so a
// host finds the nearest picture it has, and says how near it is.
#pragma once

#include "core/platform/Path.h"

#include <cstdint>
#include <functional>
#include <string>

namespace vitrelle {

/// To be filled in one colour. It lies within its box; y points down.
struct SymbolOutline {
  Path path;
  FillRule rule = FillRule::nonZero;
  double width = 16;
  double height = 16;
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
  std::function<SymbolMatch(const std::string& name)> match;
};

} // namespace vitrelle
