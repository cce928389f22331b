#include "core/pickers/SymbolCatalogue.h"

#include "core/pickers/SymbolLists.h"
#include "core/platform/FatalError.h"

#include <algorithm>
#include <string>

namespace vitrelle {

namespace {

constexpr std::array<std::string_view, categoryCount> labels = {
    "Communication", "Weather", "Objects", "Devices", "Games",      "Connectivity", "Transport",
    "People",        "Nature",  "Edit",    "Text",    "Multimedia", "KeyBoard",     "Commerce",
    "Time",          "Health",  "Forms",   "Arrows",  "Indices",    "Math",         "",
};

char lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// The file writes a category as its case is written, which is its label in lower case.
std::string_view labelOf(std::string_view category) {
  const auto* found = std::ranges::find_if(
      labels, [&](std::string_view text) { return std::ranges::equal(text, category, {}, lower); });
  if (found == labels.end()) fatalError("no category " + std::string(category));
  return *found;
}

std::vector<std::string_view> linesOf(std::string_view text) {
  std::vector<std::string_view> lines;
  lines.reserve(static_cast<std::size_t>(std::ranges::count(text, '\n')));
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    lines.push_back(text.substr(0, end));
    text.remove_prefix(end + 1);
  }
  return lines;
}

SymbolCatalogue makeCatalogue() {
  SymbolCatalogue catalogue;
  for (const SymbolList& list : symbolLists)
    catalogue.emplace(labelOf(list.category), linesOf(list.names));
  return catalogue;
}

} // namespace

std::string_view label(Category category) {
  return labels.at(static_cast<std::size_t>(category));
}

const SymbolCatalogue& symbolCatalogue() {
  static const SymbolCatalogue catalogue = makeCatalogue();
  return catalogue;
}

} // namespace vitrelle
