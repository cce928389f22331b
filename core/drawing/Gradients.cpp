#include "core/drawing/Gradients.h"

#include <utility>

namespace vitrelle {

namespace {

/// How much of what is missing to white the upper end has.
constexpr double lighter = 0.25;

PlatformColour lightened(const PlatformColour& colour) {
  const auto part = [](double value) { return value + (1 - value) * lighter; };
  return {part(colour.red), part(colour.green), part(colour.blue), colour.alpha};
}

} // namespace

LinearGradient gradientOf(const PlatformColour& colour) {
  return {.stops = {{0, lightened(colour)}, {1, colour}}};
}

LinearGradient stretched(LinearGradient gradient, const PointRect& box) {
  for (PathPoint* point : {&gradient.start, &gradient.end})
    *point = {box.x + point->x * box.width, box.y + point->y * box.height};
  return gradient;
}

} // namespace vitrelle
