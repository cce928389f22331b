#include "core/families/clock/ClockFamily.h"

#include "core/families/clock/AnalogClockView.h"
#include "core/families/clock/ClockForms.h"
#include "core/families/clock/DateView.h"
#include "core/families/clock/DigitalClockView.h"
#include "core/families/clock/Moment.h"

#include <array>
#include <string>

namespace vitrelle {

namespace {

/// How much smaller a clock is on the pages of the preview than on its widget.
constexpr double previewScale = 0.73;
/// Between words and the edge of a small widget, points.
constexpr double inset = 8;
constexpr double bodySize = 17; ///< points, of the system's text
constexpr PlatformColour white{1, 1, 1, 1};
constexpr PlatformColour grey{142 / 255.0, 142 / 255.0, 147 / 255.0, 1};

View analogSample(const Platform& platform) {
  return AnalogClockView{.timeInSeconds = secondsOfToday(platform),
                         .complexity = 1,
                         .dialShape = 0,
                         .hoursShape = 2,
                         .dialColour = grey}
      .view();
}

View digitalSample(const Platform& platform) {
  return text(timeInWords(platform), {.size = bodySize, .evenDigits = true}, white);
}

View dateSample(const Platform& platform) {
  return text(dateInWords(platform, FormatterStyle::full), {.size = bodySize}, white);
}

/// In the order of their numbers.
constexpr std::array<StyleKind, 3> clockKinds{{{"analog", "Analog Time", analogSample},
                                               {"digital", "Digital Time", digitalSample},
                                               {"date", "Date Only", dateSample}}};

std::string_view pickedStyle(ClockKind kind) {
  return clockKinds[static_cast<std::size_t>(kind)].pickedStyle;
}

View view(const Platform& platform, const clockWidgetData& style) {
  const std::string date = isDateLength(style.clockWidgetDateLength)
                               ? dateInWords(platform, dateStyle(style.clockWidgetDateLength))
                               : std::string();
  const PlatformColour dateColour = platformColour(style.clockWidgetDateColour);
  switch (clockKind(style.id)) {
  case ClockKind::analog:
    return AnalogClockView{.timeInSeconds = secondsOfToday(platform),
                           .complexity = style.clockWidgetAnalogComplexity,
                           .dialShape = style.clockWidgetAnalogDialShape,
                           .hoursShape = style.clockWidgetAnalogHoursShape,
                           .dialColour = platformColour(style.clockWidgetAnalogDialShapeColour),
                           .hoursColour = platformColour(style.clockWidgetAnalogHoursColour),
                           .armsColour = platformColour(style.clockWidgetAnalogArmsColour),
                           .dateEnabled = style.clockWidgetDateEnabled,
                           .dateLength = style.clockWidgetDateLength,
                           .dateFont = style.clockWidgetDateFont,
                           .dateSize = style.clockWidgetDateSize,
                           .dateColour = dateColour,
                           .date = date}
        .view();
  case ClockKind::digital:
    return DigitalClockView{.digitalFont = style.clockWidgetDigitalFont,
                            .digitalSize = style.clockWidgetDigitalSize,
                            .digitalColour = platformColour(style.clockWidgetDigitalColour),
                            .dateEnabled = style.clockWidgetDateEnabled,
                            .dateLength = style.clockWidgetDateLength,
                            .dateFont = style.clockWidgetDateFont,
                            .dateSize = style.clockWidgetDateSize,
                            .dateColour = dateColour,
                            .time = timeInWords(platform),
                            .date = date}
        .view();
  case ClockKind::date:
    return DateView{.dateLength = style.clockWidgetDateLength,
                    .dateFont = style.clockWidgetDateFont,
                    .dateSize = style.clockWidgetDateSize,
                    .dateColour = dateColour,
                    .date = date}
        .view();
  }
  return spacer();
}

} // namespace

ClockKind clockKind(std::string_view pickedStyle) {
  for (std::size_t i = 0; i < clockKinds.size(); ++i) {
    if (clockKinds[i].pickedStyle == pickedStyle) return static_cast<ClockKind>(i);
  }
  return ClockKind::analog;
}

ClockKind clockKind(std::int64_t id) {
  return id == 1 || id == 2 ? static_cast<ClockKind>(id) : ClockKind::analog;
}

View ClockFamily::face(const Platform& platform, const StyleRecord& record, FaceUse use) const {
  const auto& style = std::get<clockWidgetData>(record);
  const bool isAnalog = clockKind(style.id) == ClockKind::analog;
  const View whole = view(platform, style);
  if (use == FaceUse::preview) {
    // The face stands at the top of its box, which goes down to the page's end.
    return vstack({isAnalog ? scaled(whole, previewScale) : whole, spacer()});
  }
  if (use == FaceUse::gallery && !isAnalog) return padded(whole, {inset, inset, inset, inset});
  return whole;
}

PointRect ClockFamily::previewBox(const Platform& platform, const PointSize& page) const {
  const PointSize screen = platform.device.screenBounds();
  const double top = screen.height / 1.5 * 0.125;
  const double behind = screen.width / 3.5;
  return {0, top, page.width - behind, page.height - top - behind};
}

std::span<const StyleKind> ClockFamily::kinds() const {
  return clockKinds;
}

std::string ClockFamily::kindOf(const StyleRecord& record) const {
  return std::string(pickedStyle(clockKind(std::get<clockWidgetData>(record).id)));
}

StyleDraft ClockFamily::newDraft(std::string_view kind) const {
  const ClockKind picked = clockKind(kind);
  return {.record = clockWidgetData{.id = static_cast<std::int64_t>(picked)},
          .kind = std::string(pickedStyle(picked))};
}

std::vector<FormRow> ClockFamily::rows(EditorStep step) const {
  return step == EditorStep::setup ? clockSetupRows() : clockColourRows();
}

void ClockFamily::copy(EditorStep step, const StyleDraft& from, StyleRecord& to) const {
  const auto& draft = std::get<clockWidgetData>(from.record);
  auto& style = std::get<clockWidgetData>(to);
  if (step == EditorStep::second) {
    style.clockWidgetDateColour = draft.clockWidgetDateColour;
    style.clockWidgetAnalogDialShapeColour = draft.clockWidgetAnalogDialShapeColour;
    style.clockWidgetAnalogArmsColour = draft.clockWidgetAnalogArmsColour;
    style.clockWidgetAnalogHoursColour = draft.clockWidgetAnalogHoursColour;
    style.clockWidgetDigitalColour = draft.clockWidgetDigitalColour;
    return;
  }
  style.id = static_cast<std::int64_t>(clockKind(from.kind));
  style.clockWidgetDateEnabled = draft.clockWidgetDateEnabled;
  style.clockWidgetDateLength = draft.clockWidgetDateLength;
  style.clockWidgetDatePlacement = draft.clockWidgetDatePlacement;
  style.clockWidgetDateSize = draft.clockWidgetDateSize;
  style.clockWidgetDateFont = draft.clockWidgetDateFont;
  style.clockWidgetAnalogComplexity = draft.clockWidgetAnalogComplexity;
  style.clockWidgetAnalogDialShape = draft.clockWidgetAnalogDialShape;
  style.clockWidgetAnalogHoursShape = draft.clockWidgetAnalogHoursShape;
  style.clockWidgetDigitalFont = draft.clockWidgetDigitalFont;
  style.clockWidgetDigitalSize = draft.clockWidgetDigitalSize;
}

} // namespace vitrelle
