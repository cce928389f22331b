#include "core/slicing/WidgetLocation.h"

#include "core/platform/FatalError.h"

#include <array>
#include <cstddef>

namespace vitrelle {

namespace {

using enum WidgetLocationImageNames;

constexpr WidgetLocationImageNames locations[] = {
    fullImage,       smallTopLeft,     smallTopRight, smallMiddleLeft, smallMiddleRight,
    smallBottomLeft, smallBottomRight, mediumTop,     mediumMiddle,    mediumBottom,
    largeTop,        largeBottom,      error,
};

constexpr std::string_view stems[] = {
    "original",        "topLeftSmall",     "topRightSmall", "midLeftSmall", "midRightSmall",
    "bottomLeftSmall", "bottomRightSmall", "topMedium",     "midMedium",    "bottomMedium",
    "topLarge",        "bottomLarge",      "error",
};
static_assert(std::size(stems) == std::size(locations));

constexpr WidgetLocationImageNames smallSlots[] = {smallTopLeft,    smallTopRight,
                                                   smallMiddleLeft, smallMiddleRight,
                                                   smallBottomLeft, smallBottomRight};
constexpr WidgetLocationImageNames mediumSlots[] = {mediumTop, mediumMiddle, mediumBottom};
constexpr WidgetLocationImageNames largeSlots[] = {largeTop, largeBottom};

/// Where a slot stands in the grid of two columns and three rows, and how many further columns and
/// rows it covers with the gaps between them.
struct GridPlace {
  WidgetLocationImageNames slot;
  int column, row, moreColumns, moreRows;
};

constexpr GridPlace places[] = {
    {smallTopLeft, 0, 0, 0, 0},     {smallTopRight, 1, 0, 0, 0},   {smallMiddleLeft, 0, 1, 0, 0},
    {smallMiddleRight, 1, 1, 0, 0}, {smallBottomLeft, 0, 2, 0, 0}, {smallBottomRight, 1, 2, 0, 0},
    {mediumTop, 0, 0, 1, 0},        {mediumMiddle, 0, 1, 1, 0},    {mediumBottom, 0, 2, 1, 0},
    {largeTop, 0, 0, 1, 1},         {largeBottom, 0, 1, 1, 1},
};

std::int64_t stepped(std::int64_t start, int steps, std::int64_t pitch) {
  return checkedAdd(start, checkedMultiply(steps, pitch));
}

} // namespace

std::span<const WidgetLocationImageNames> allWidgetLocations() {
  return locations;
}

std::string_view rawValue(WidgetLocationImageNames location) {
  return stems[static_cast<std::size_t>(location)];
}

std::optional<WidgetLocationImageNames> widgetLocation(std::string_view rawValue) {
  for (const WidgetLocationImageNames location : locations) {
    if (vitrelle::rawValue(location) == rawValue) return location;
  }
  return std::nullopt;
}

std::string sliceFileName(StyleNumber number, std::string_view stem, InterfaceStyle style) {
  std::string name = std::to_string(number.value);
  name += stem;
  if (style == darkStyle) name += "Dark";
  return name + ".png";
}

std::span<const WidgetLocationImageNames> slots(WidgetFamily family) {
  switch (family) {
  case WidgetFamily::small:
    return smallSlots;
  case WidgetFamily::medium:
    return mediumSlots;
  case WidgetFamily::large:
    return largeSlots;
  }
  fatalError("a widget family that does not exist");
}

PixelRect slotRectangle(WidgetLocationImageNames slot, const WidgetMeasurements& measurements) {
  for (const GridPlace& place : places) {
    if (place.slot != slot) continue;
    const auto& [size, top, left, horizontal, vertical] = measurements;
    return {.x = stepped(left, place.column, horizontal),
            .y = stepped(top, place.row, vertical),
            .width = stepped(size, place.moreColumns, horizontal),
            .height = stepped(size, place.moreRows, vertical)};
  }
  fatalError("the rectangle of a location that is no slot");
}

} // namespace vitrelle
