#include "host/symbols/Symbols.h"

#include "host/symbols/SymbolShapes.h"
#include "host/symbols/SymbolTable.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <set>
#include <string_view>
#include <utility>
#include <vector>

namespace vitrelle::host {

namespace {

/// Where a picture is found.
struct Place {
  const SymbolEntry* entry = nullptr; ///< of the picture, or of what stands within the shape
  std::string_view letters = {};      ///< spelled within the shape instead
  std::optional<Enclosure> shape = std::nullopt;

  SymbolMatch match() const { return shape ? SymbolMatch::composition : entry->match; }
};

PathCommand commandOf(char letter) {
  switch (letter) {
  case 'M':
    return PathCommand::move;
  case 'L':
    return PathCommand::line;
  case 'C':
    return PathCommand::cubic;
  default:
    return PathCommand::close;
  }
}

Path pathOf(const SymbolEntry& entry) {
  Path path;
  path.commands.reserve(entry.commandCount);
  std::size_t points = 0;
  for (const char letter : symbolTable.commands.substr(entry.firstCommand, entry.commandCount)) {
    path.commands.push_back(commandOf(letter));
    points += pointCount(path.commands.back());
  }
  const auto coordinates = symbolTable.coordinates.subspan(entry.firstPoint * std::size_t{2});
  constexpr double unit = 1024;
  path.points.reserve(points);
  for (std::size_t i = 0; i < points; ++i) {
    path.points.push_back({coordinates[2 * i] / unit, coordinates[2 * i + 1] / unit});
  }
  return path;
}

std::string_view nameOf(const SymbolEntry& entry) {
  return symbolTable.names.substr(entry.firstLetter, entry.letterCount);
}

const SymbolEntry* entryOf(std::string_view name) {
  const auto entry = std::ranges::lower_bound(symbolTable.entries, name, {}, nameOf);
  return entry != symbolTable.entries.end() && nameOf(*entry) == name ? &*entry : nullptr;
}

/// Takes the ending off the name, if it has it and more.
bool dropEnding(std::string_view& name, std::string_view ending) {
  if (name.size() <= ending.size() || !name.ends_with(ending)) return false;
  name.remove_suffix(ending.size());
  return true;
}

/// Up to two letters or digits, such as those of `50.square`.
bool canBeSpelled(std::string_view text) {
  return !text.empty() && text.size() <= 2 && std::ranges::all_of(text, [](const char& letter) {
    return entryOf({&letter, 1}) != nullptr;
  });
}

Path spelling(std::string_view letters) {
  std::vector<Path> glyphs;
  for (const char& letter : letters)
    glyphs.push_back(pathOf(*entryOf({&letter, 1})));
  return spelled(glyphs);
}

/// What stands within a shape: rather a filled picture, which is still told when it is small.
const SymbolEntry* glyphOf(std::string_view name) {
  const SymbolEntry* filled = entryOf(std::string(name) + ".fill");
  return filled ? filled : entryOf(name);
}

std::optional<Place> known(std::string_view name) {
  if (const SymbolEntry* entry = entryOf(name)) return Place{.entry = entry};
  constexpr std::array<std::pair<std::string_view, Enclosure>, 4> shapes = {
      {{".circle", Enclosure::circle},
       {".circle.fill", Enclosure::filledCircle},
       {".square", Enclosure::square},
       {".square.fill", Enclosure::filledSquare}}};
  for (const auto& [ending, shape] : shapes) {
    std::string_view rest = name;
    if (!dropEnding(rest, ending)) continue;
    if (const SymbolEntry* glyph = glyphOf(rest)) return Place{.entry = glyph, .shape = shape};
    if (canBeSpelled(rest)) return Place{.letters = rest, .shape = shape};
  }
  return std::nullopt;
}

/// Names go from the thing to its variants, so the picture of their beginning is near enough.
std::optional<Place> stripped(std::string_view name) {
  while (true) {
    const std::size_t badge = name.find(".badge");
    const std::size_t end = badge != std::string_view::npos ? badge : name.rfind('.');
    if (end == std::string_view::npos) return std::nullopt;
    name = name.substr(0, end);
    // A letter alone would stand for anything.
    if (name.size() < 2) return std::nullopt;
    if (const auto found = known(name)) return found;
  }
}

std::optional<Place> placeOf(std::string_view name) {
  const auto found = known(name);
  return found ? found : stripped(name);
}

SymbolOutline outlineOf(const Place& place) {
  if (!place.shape) return {.path = pathOf(*place.entry)};
  return enclosed(place.entry ? pathOf(*place.entry) : spelling(place.letters), *place.shape);
}

SymbolOutline fallback(std::string_view name) {
  const auto letter = std::ranges::find_if(
      name, [](char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0; });
  const char lower = letter == name.end()
                         ? 'x'
                         : static_cast<char>(std::tolower(static_cast<unsigned char>(*letter)));
  return enclosed(spelling({&lower, 1}), Enclosure::square);
}

SymbolOutline outline(const std::string& name) {
  const auto found = placeOf(name);
  return found ? outlineOf(*found) : fallback(name);
}

PlatformColour colourOf(std::uint32_t hexadecimal) {
  const auto part = [&](unsigned shift) { return (hexadecimal >> shift & 0xFFU) / 255.0; };
  return {part(16), part(8), part(0), 1};
}

/// The contours of the path that show one thing.
Path contoursOf(const Path& path, std::string_view things, char wanted) {
  Path result;
  std::size_t next = 0;
  std::size_t begun = 0;
  for (const PathCommand command : path.commands) {
    const auto points = path.points.begin() + static_cast<std::ptrdiff_t>(next);
    const std::size_t count = pointCount(command);
    next += count;
    if (command == PathCommand::move) ++begun;
    if (things[begun - 1] != wanted) continue;
    result.commands.push_back(command);
    result.points.insert(result.points.end(), points, points + static_cast<std::ptrdiff_t>(count));
  }
  return result;
}

std::vector<SymbolPart> partsOf(const SymbolEntry& entry) {
  const Path path = pathOf(entry);
  const auto contours = std::ranges::count(path.commands, PathCommand::move);
  const std::string_view things =
      symbolTable.things.substr(entry.firstThing, static_cast<std::size_t>(contours));
  // The given colour comes before the letters.
  const std::set<char> kinds(things.begin(), things.end());
  std::vector<SymbolPart> parts;
  for (const char kind : kinds) {
    SymbolPart& part = parts.emplace_back();
    part.outline.path = contoursOf(path, things, kind);
    if (kind != '-')
      part.colour = colourOf(symbolTable.colours[static_cast<std::size_t>(kind - 'a')]);
  }
  return parts;
}

std::vector<SymbolPart> parts(const std::string& name) {
  const auto found = placeOf(name);
  if (found && !found->shape && found->entry->firstThing > 0) return partsOf(*found->entry);
  return {{.outline = outline(name)}};
}

SymbolMatch match(const std::string& name) {
  if (const auto found = known(name)) return found->match();
  return stripped(name) ? SymbolMatch::stripped : SymbolMatch::fallback;
}

} // namespace

Symbols makeSymbols() {
  return {.outline = outline, .parts = parts, .match = match};
}

} // namespace vitrelle::host
