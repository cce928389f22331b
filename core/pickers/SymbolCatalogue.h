// The symbols that a user may pick, in named lists. A name may stand in several lists, and never
// twice in one.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <string_view>
#include <vector>

namespace vitrelle {

enum class Category : std::uint8_t {
  communication,
  weather,
  objects,
  devices,
  games,
  connectivity,
  transport,
  people,
  nature,
  edit,
  text,
  multimedia,
  keyboard,
  commerce,
  time,
  health,
  forms,
  arrows,
  indices,
  math,
  none, ///< has no list
};

inline constexpr std::size_t categoryCount = 21;

/// In their order.
constexpr std::array<Category, categoryCount> allCategories() {
  std::array<Category, categoryCount> all{};
  for (std::size_t i = 0; i < categoryCount; ++i)
    all[i] = static_cast<Category>(i);
  return all;
}

/// The key into the catalogue; empty for `none`.
std::string_view label(Category category);

/// The names of each label's list, in the order of display.
using SymbolCatalogue = std::map<std::string_view, std::vector<std::string_view>>;

/// Made at the first use.
const SymbolCatalogue& symbolCatalogue();

} // namespace vitrelle
