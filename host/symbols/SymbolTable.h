// The symbols that the table of the assets tells of, as the build compiled them.
#pragma once

#include "core/platform/Symbols.h"

#include <cstdint>
#include <span>
#include <string_view>

namespace vitrelle::host {

struct SymbolEntry {
  std::string_view name;
  SymbolMatch match;
  // Where its outline stands in the table's commands and points.
  std::uint32_t firstCommand;
  std::uint32_t commandCount;
  std::uint32_t firstPoint;
};

struct SymbolTable {
  std::span<const SymbolEntry> entries; ///< sorted by name
  std::string_view commands;            ///< M, L, C, Z as in SVG
  std::span<const float> coordinates;   ///< x and y of each point, in a box of 16 by 16
};

extern const SymbolTable symbolTable;

} // namespace vitrelle::host
