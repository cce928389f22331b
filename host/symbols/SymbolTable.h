// The symbols that the table of the assets tells of, as the build compiled them.
#pragma once

#include "core/platform/Symbols.h"

#include <cstdint>
#include <span>
#include <string_view>

namespace vitrelle::host {

struct SymbolEntry {
  // Where the name stands in the table's names: an address would have to be filled in at the start.
  std::uint32_t firstLetter;
  std::uint8_t letterCount;
  SymbolMatch match;
  // Where its outline stands in the table's commands and points.
  std::uint32_t firstCommand;
  std::uint16_t commandCount;
  std::uint32_t firstPoint;
  std::uint16_t firstThing; ///< where it stands in the table's things; 0 for none
};

struct SymbolTable {
  std::span<const SymbolEntry> entries; ///< sorted by name
  std::string_view names;
  std::string_view commands; ///< M, L, C, Z as in SVG
  /// x and y of each point, in a box of 16 by 16 units of 1024.
  std::span<const std::int16_t> coordinates;
  /// What each contour shows: a has the first of the colours, - the one that is given.
  std::string_view things;
  std::span<const std::uint32_t> colours; ///< RRGGBB
};

extern const SymbolTable symbolTable;

} // namespace vitrelle::host
