// The catalogue's lists of names as the build made them from the file of the assets.
#pragma once

#include <span>
#include <string_view>

namespace vitrelle {

struct SymbolList {
  std::string_view category; ///< as the file writes it, such as "communication"
  std::string_view names;    ///< in the order of display, each with a line end after it
};

extern const std::span<const SymbolList> symbolLists;

} // namespace vitrelle
