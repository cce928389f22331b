#include "core/families/clock/AnalogClockView.h"

#include "core/drawing/Shapes.h"
#include "core/families/clock/Clock.h"
#include "core/families/clock/DateView.h"

#include <array>
#include <numbers>
#include <utility>
#include <vector>

namespace vitrelle {

namespace {

using Shape = std::function<Path(const PointRect&)>;

// Points.
constexpr double face = 100;
constexpr double dial = 110; ///< hangs over the face's edge
constexpr double dialRadius = 18;
constexpr double dateDistance = 4;

constexpr StrokeStyle dialStroke{.width = 4};
constexpr StrokeStyle handStroke{.width = 2, .cap = LineCap::round, .join = LineJoin::round};
/// Six degrees by which every hand is ahead of its time. All faces that were ever drawn have it.
constexpr double ahead = 0.10471975511965978;
constexpr Shadow handShadow{.colour = {0, 0, 0, 0.3}, .radius = 3, .x = 3, .y = 2};

constexpr std::int64_t withHours = 1;
constexpr std::int64_t withDial = 2;
constexpr std::int64_t fullDate = 1;

Path bar(const PointRect& box) {
  return shapes::continuousRectangle(box, 1);
}

Path roundedSquare(const PointRect& box) {
  return shapes::continuousRectangle(box, dialRadius);
}

struct Marker {
  Path (*shape)(const PointRect&);
  double width;
  double height;
};
constexpr std::array<Path (*)(const PointRect&), 2> dials{shapes::circle, roundedSquare};
constexpr std::array<Marker, 3> markers{
    {{bar, 2, 15}, {shapes::circle, 2, 2}, {shapes::circle, 5, 5}}};

/// What a code of a record stands for, or nothing.
template <class Table>
const typename Table::value_type* find(const Table& table, std::int64_t code) {
  if (code < 0 || code >= std::ssize(table)) return nullptr;
  return &table[static_cast<std::size_t>(code)];
}

void addHours(std::vector<View>& to, const Marker& marker, const PlatformColour& colour) {
  constexpr int hours = 12;
  for (int hour = 0; hour < hours; ++hour) {
    const View at12 =
        vstack({framed(filled(marker.shape, colour), marker.width, marker.height), spacer()},
               Place::centre, 0);
    to.push_back(rotated(at12, hour * 2 * std::numbers::pi / hours));
  }
}

View hand(const ClockTickerModel& model, const PlatformColour& colour) {
  const Shape shape = [clock = Clock{model}](const PointRect& box) { return clock.path(box); };
  return shadowed(rotated(stroked(shape, handStroke, colour), ahead), handShadow);
}

} // namespace

View AnalogClockView::view() const {
  std::vector<View> layers;
  if (const auto* shape = find(dials, dialShape); shape != nullptr && complexity == withDial)
    layers.push_back(framed(stroked(*shape, dialStroke, dialColour), dial, dial));
  if (const Marker* marker = find(markers, hoursShape);
      marker != nullptr && (complexity == withHours || complexity == withDial))
    addHours(layers, *marker, hoursColour);
  layers.push_back(hand({TickerType::hour, timeInSeconds, 0.5}, armsColour));
  layers.push_back(hand({TickerType::minute, timeInSeconds, 0.8}, armsColour));

  std::vector<View> parts{framed(zstack(std::move(layers)), face, face)};
  if (dateEnabled && isDateLength(dateLength)) {
    const auto alignment = dateLength == fullDate ? TextAlignment::centre : TextAlignment::leading;
    parts.push_back(padded(text(date, {.name = dateFont, .size = static_cast<double>(dateSize)},
                                dateColour, alignment),
                           {.top = dateDistance}));
  }
  return vstack(std::move(parts));
}

} // namespace vitrelle
