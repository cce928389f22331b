#include "host/symbols/Symbols.h"

namespace vitrelle::host {

namespace {

SymbolOutline square() {
  using enum PathCommand;
  return {.path = {.commands = {Move, Line, Line, Line, Close},
                   .points = {{1, 1}, {15, 1}, {15, 15}, {1, 15}}}};
}

} // namespace

Symbols makeSymbols() {
  return {.outline = [](const std::string&) { return square(); },
          .match = [](const std::string&) { return SymbolMatch::Fallback; }};
}

} // namespace vitrelle::host
