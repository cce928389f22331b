#include "core/families/battery/BatteryFamily.h"

#include "core/families/battery/Meter.h"
#include "core/lifecycle/Backdrop.h"

#include <utility>

namespace vitrelle {

namespace {

using Record = batteryWidgetData;

// Shapes as records number them; any other number is a ring.
constexpr std::int64_t ring = 0;
constexpr std::int64_t square = 1;
constexpr std::int64_t capsule = 2;

/// The system's green, in each appearance.
constexpr Colour lightGreen{52 / 255.0F, 199 / 255.0F, 89 / 255.0F};
constexpr Colour darkGreen{48 / 255.0F, 209 / 255.0F, 88 / 255.0F};

const Record& style(const StyleDraft& draft) {
  return std::get<Record>(draft.record);
}

/// The side of a ring or a square, points.
double side(const Platform& platform, FaceUse use) {
  const double width = platform.device.screenBounds().width;
  switch (use) {
  case FaceUse::setup:
  case FaceUse::second:
  case FaceUse::assign:
    return width / 3;
  case FaceUse::gallery:
  case FaceUse::preview:
  case FaceUse::widget:
  case FaceUse::wideWidget:
    return width / 3.5;
  }
  return 0;
}

bool hasMiddle(const StyleDraft& draft) {
  return style(draft).batteryType != capsule;
}
bool hasSymbol(const StyleDraft& draft) {
  return hasMiddle(draft) && style(draft).batteryShowSymbol;
}
bool hasPercentage(const StyleDraft& draft) {
  return hasMiddle(draft) && style(draft).batteryShowPercentage;
}

} // namespace

View BatteryFamily::face(const Platform& platform, const StyleRecord& record, FaceUse use) const {
  const auto& style = std::get<Record>(record);
  const float level = platform.battery.level();
  const PlatformColour lineColour = platformColour(style.batteryRingColour);
  if (style.batteryType == capsule) {
    return LineMeter{.battery = level, .lineColour = lineColour}.view(
        platform.device.screenBounds().width);
  }
  const PlatformColour iconColour = platformColour(style.batteryIconColour);
  const PlatformColour textColour = platformColour(style.batteryTextColour);
  const View meter = style.batteryType == square
                         ? SquareMeter{.battery = level,
                                       .lineColour = lineColour,
                                       .iconColour = iconColour,
                                       .textColour = textColour,
                                       .symbol = style.batterySymbol,
                                       .symbolOn = style.batteryShowSymbol,
                                       .font = style.batteryFont,
                                       .percentageOn = style.batteryShowPercentage}
                               .view()
                         : Meter{.battery = level,
                                 .ringColour = lineColour,
                                 .iconColour = iconColour,
                                 .textColour = textColour,
                                 .symbol = style.batterySymbol,
                                 .symbolOn = style.batteryShowSymbol,
                                 .font = style.batteryFont,
                                 .percentageOn = style.batteryShowPercentage}
                               .view();
  const double frame = side(platform, use);
  return framed(meter, frame, frame);
}

Subscription BatteryFamily::live(const Platform& platform, std::function<void()> changed) const {
  platform.battery.setMonitoringEnabled(true);
  bool isFirst = true; // the level that the face is drawn with anyway
  return platform.battery.watch([changed = std::move(changed), isFirst](float) mutable {
    if (!std::exchange(isFirst, false)) changed();
  });
}

PointRect BatteryFamily::previewBox(const Platform& platform, const PointSize& page) const {
  return topBox(platform, page, side(platform, FaceUse::preview));
}

StyleDraft BatteryFamily::secondDraft(const Platform& platform, const StyleRecord& record,
                                      bool isNew) const {
  if (!isNew) return {.record = record};
  auto style = std::get<Record>(record);
  style.batteryRingColour = currentAppearance(platform) == darkStyle ? darkGreen : lightGreen;
  style.batteryIconColour = colours::batteryGrey;
  style.batteryTextColour = colours::batteryGrey;
  return {.record = std::move(style)};
}

std::vector<FormRow> BatteryFamily::rows(EditorStep step) const {
  if (step == EditorStep::second) {
    const auto well = [](std::string_view title, Colour Record::*field) {
      return rowOver(title, FormControl::colourWell, field);
    };
    return {shownWhen([](const StyleDraft& draft) { return !hasMiddle(draft); },
                      well("Set Line Colour", &Record::batteryRingColour)),
            shownWhen(hasMiddle, well("Set Ring Colour", &Record::batteryRingColour)),
            shownWhen(hasSymbol, well("Set Symbol Colour", &Record::batteryIconColour)),
            shownWhen(hasPercentage, well("Set Text Colour", &Record::batteryTextColour))};
  }
  return {
      choiceOver(
          "Shape", "Select an appearance", &Record::batteryType,
          {{ring, "circle", "Ring"}, {square, "square", "Square"}, {capsule, "capsule", "Line"}}),
      shownWhen(hasMiddle, rowOver("Show Symbol", FormControl::toggle, &Record::batteryShowSymbol)),
      shownWhen(hasSymbol, rowOver("Symbol", FormControl::symbol, &Record::batterySymbol)),
      shownWhen(hasMiddle,
                rowOver("Show Percentage", FormControl::toggle, &Record::batteryShowPercentage)),
      shownWhen(hasPercentage, rowOver("Font", FormControl::font, &Record::batteryFont))};
}

void BatteryFamily::copy(EditorStep step, const StyleDraft& from, StyleRecord& to) const {
  const auto& draft = style(from);
  auto& style = std::get<Record>(to);
  if (step == EditorStep::second) {
    style.batteryRingColour = draft.batteryRingColour;
    style.batteryIconColour = draft.batteryIconColour;
    style.batteryTextColour = draft.batteryTextColour;
    return;
  }
  style.batteryType = draft.batteryType;
  style.batteryShowSymbol = draft.batteryShowSymbol;
  style.batterySymbol = draft.batterySymbol;
  style.batteryShowPercentage = draft.batteryShowPercentage;
  style.batteryFont = draft.batteryFont;
}

} // namespace vitrelle
