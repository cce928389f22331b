#include "core/families/clock/ClockForms.h"

#include "core/families/clock/ClockFamily.h"

#include <utility>

namespace vitrelle {

namespace {

using Record = clockWidgetData;

const Record& style(const StyleDraft& draft) {
  return std::get<Record>(draft.record);
}

// What the segments of a choice stand for, from the left.
constexpr std::int64_t first = 0;
constexpr std::int64_t second = 1;
constexpr std::int64_t third = 2;

// When a row is shown.

bool isAnalog(const StyleDraft& draft) {
  return clockKind(draft.kind) == ClockKind::analog;
}
bool isDigital(const StyleDraft& draft) {
  return clockKind(draft.kind) == ClockKind::digital;
}
bool isDateOnly(const StyleDraft& draft) {
  return clockKind(draft.kind) == ClockKind::date;
}
bool isNotDateOnly(const StyleDraft& draft) {
  return !isDateOnly(draft);
}
bool hasDate(const StyleDraft& draft) {
  return style(draft).clockWidgetDateEnabled || isDateOnly(draft);
}
bool hasDial(const StyleDraft& draft) {
  return style(draft).clockWidgetAnalogComplexity == 2;
}
bool hasHours(const StyleDraft& draft) {
  return style(draft).clockWidgetAnalogComplexity == 1 || hasDial(draft);
}

FormRow choice(std::string_view title, std::int64_t Record::*field,
               std::vector<FormOption> options) {
  return choiceOver(title, "Select a Style", field, std::move(options));
}

} // namespace

std::vector<FormRow> clockSetupRows() {
  return {shownWhen(isAnalog, choice("Analog Style", &Record::clockWidgetAnalogComplexity,
                                     {{first, "line.diagonal", "Hands"},
                                      {second, "circle.dotted", "Hands and hours"},
                                      {third, "circle", "Hands, hours and dial"}})),
          shownWhen([](const StyleDraft& draft) { return isAnalog(draft) && hasDial(draft); },
                    choice("Dial Shape", &Record::clockWidgetAnalogDialShape,
                           {{first, "circle", "Circle"}, {second, "square", "Square"}})),
          shownWhen([](const StyleDraft& draft) { return isAnalog(draft) && hasHours(draft); },
                    choice("Hour Shape", &Record::clockWidgetAnalogHoursShape,
                           {{first, "rectangle.portrait.fill", "Bars"},
                            {second, "smallcircle.filled.circle", "Small dots"},
                            {third, "circle.inset.filled", "Large dots"}})),
          shownWhen(isDigital,
                    rowOver("Size: ", FormControl::stepper, &Record::clockWidgetDigitalSize)),
          shownWhen(isDigital, rowOver("Font", FormControl::font, &Record::clockWidgetDigitalFont)),
          shownWhen(isNotDateOnly,
                    rowOver("Show Date", FormControl::toggle, &Record::clockWidgetDateEnabled)),
          shownWhen(hasDate, choice("Date Length", &Record::clockWidgetDateLength,
                                    {{first, "arrow.down.right.and.arrow.up.left", "Short"},
                                     {second, "arrow.up.left.and.arrow.down.right", "Full"}})),
          shownWhen(hasDate, rowOver("Size: ", FormControl::stepper, &Record::clockWidgetDateSize)),
          shownWhen(hasDate, rowOver("Font", FormControl::font, &Record::clockWidgetDateFont))};
}

std::vector<FormRow> clockColourRows() {
  const auto well = [](std::string_view title, Colour Record::*field) {
    return rowOver(title, FormControl::colourWell, field);
  };
  FormRow date = shownWhen(hasDate, well("Date Colour", &Record::clockWidgetDateColour));
  date.isBehindDivider = true;
  return {shownWhen(isAnalog, well("Hands Colour", &Record::clockWidgetAnalogArmsColour)),
          shownWhen(isDigital, well("Time Colour", &Record::clockWidgetDigitalColour)),
          // Of a style that was once another kind, the colour of its hours is still asked for.
          shownWhen(hasHours, well("Hours Colour", &Record::clockWidgetAnalogHoursColour)),
          shownWhen(hasDial, well("Dial Colour", &Record::clockWidgetAnalogDialShapeColour)), date};
}

} // namespace vitrelle
