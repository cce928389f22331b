#include "core/families/battery/Meter.h"

#include "core/drawing/Shapes.h"
#include "core/drawing/Trim.h"

#include <cmath>
#include <cstdio>
#include <utility>
#include <vector>

namespace vitrelle {

namespace {

using Shape = std::function<Path(const PointRect&)>;

constexpr Insets around{defaultPadding, defaultPadding, defaultPadding, defaultPadding};
constexpr StrokeStyle thick{.width = 16, .cap = LineCap::round};
/// Shapes begin at their right end: three quarters of a turn, so that a level begins at the top.
constexpr double startAtTop = 4.71238898038469;
constexpr double cornerRadius = 18;
constexpr double lineHeight = 20;
/// Far beyond half the height of a line, whose ends are thus round.
constexpr double lineRadius = 200;
constexpr double middleSize = 20;
constexpr int semibold = 600;

PlatformColour faint(PlatformColour colour) {
  colour.alpha *= 0.5;
  return colour;
}

Path square(const PointRect& box) {
  return shapes::continuousRectangle(box, cornerRadius);
}

std::string percentage(float level) {
  const float percent = level * 100;
  if (std::isnan(percent)) return "nan%"; // some libraries write its sign
  char words[64];
  std::snprintf(words, sizeof words, "%.0f%%", static_cast<double>(percent));
  return words;
}

/// What both meters that go around have inside.
template <class AnyMeter>
View middle(const AnyMeter& meter) {
  std::vector<View> parts;
  if (meter.symbolOn) {
    parts.push_back(padded(symbol(meter.symbol, middleSize, meter.iconColour, semibold),
                           {.bottom = defaultPadding}));
  }
  if (meter.percentageOn) {
    parts.push_back(text(percentage(meter.battery),
                         {.name = meter.font, .size = middleSize, .weight = semibold},
                         meter.textColour));
  }
  return vstack(std::move(parts));
}

View filledAround(Shape shape, float level, const PlatformColour& colour, const View& middle) {
  const Shape part = [shape, level](const PointRect& box) {
    return trimmed(shape(box), 0, static_cast<double>(level));
  };
  return zstack({padded(stroked(std::move(shape), thick, faint(colour)), around),
                 padded(rotated(stroked(part, thick, colour), startAtTop), around), middle});
}

} // namespace

View Meter::view() const {
  return filledAround(shapes::circle, battery, ringColour, middle(*this));
}

View SquareMeter::view() const {
  return filledAround(square, battery, lineColour, middle(*this));
}

View LineMeter::view(double screenWidth) const {
  const double whole = screenWidth / 3;
  const auto line = [](double width, const PlatformColour& colour) {
    const Shape shape = [](const PointRect& box) {
      return shapes::continuousRectangle(box, lineRadius);
    };
    return padded(framed(filled(shape, colour), width, lineHeight), around);
  };
  // A negative width is the layout's business, but no number of points is not a width.
  const double filledWidth = std::isfinite(battery) ? whole * static_cast<double>(battery) : 0;
  return zstack({line(whole, faint(lineColour)), line(filledWidth, lineColour)},
                {Place::start, Place::centre});
}

} // namespace vitrelle
