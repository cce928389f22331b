#include "core/families/weather/WeatherForms.h"

#include "core/families/weather/WeatherFamily.h"

#include <utility>

namespace vitrelle {

namespace {

using Record = weatherWidgetData;

using complexity::advanced;
using complexity::plain;

constexpr std::string_view dynamicNote =
    "The Dynamic Weather Widget Style changes throughout the day depending on the weather in your "
    "current location.";

const Record& style(const StyleDraft& draft) {
  return std::get<Record>(draft.record);
}

// When a row is shown.

bool isOf(const StyleDraft& draft, WeatherKind kind) {
  return weatherKind(draft.kind) == kind;
}
bool isCurrent(const StyleDraft& draft) {
  return isOf(draft, WeatherKind::currentWeather);
}
bool isNotCurrent(const StyleDraft& draft) {
  return !isCurrent(draft);
}
bool isPlain(const StyleDraft& draft) {
  return isCurrent(draft) && style(draft).id == plain;
}
bool isAdvanced(const StyleDraft& draft) {
  return isCurrent(draft) && style(draft).id == advanced;
}
bool isEither(const StyleDraft& draft) {
  return isPlain(draft) || isAdvanced(draft);
}

FormRow noteOf(WeatherKind kind, std::string_view symbol, std::string_view words) {
  return shownWhen([kind](const StyleDraft& draft) { return isOf(draft, kind); },
                   note(symbol, words));
}

} // namespace

std::vector<FormRow> weatherSetupRows() {
  const auto toggle = [](std::string_view title, bool Record::*field) {
    return rowOver(title, FormControl::toggle, field);
  };
  return {shownWhen(isCurrent, choiceOver("Complexity", "Select a Complexity", &Record::id,
                                          {{plain, "square.2.layers.3d", "Plain"},
                                           {advanced, "square.3.layers.3d", "Advanced"}})),
          shownWhen(isPlain, toggle("Show Symbol", &Record::showCurrentWeatherSymbol)),
          shownWhen(isAdvanced, toggle("Show Location Symbol", &Record::showLocationSymbol)),
          shownWhen(isAdvanced,
                    toggle("Show Weather Description", &Record::showCurrentWeatherDescription)),
          noteOf(WeatherKind::dynamic, "atom", dynamicNote),
          noteOf(WeatherKind::rings, "circle.dashed",
                 "The Rings Weather Widget Style displays various weather statistics in a concise "
                 "manner on your home screen."),
          noteOf(WeatherKind::forecast, "5.circle", "<FILL IN WHEN CAN BE BOTHERED>")};
}

std::vector<FormRow> weatherColourRows() {
  const auto well = [](std::string_view title, Colour Record::*field) {
    return rowOver(title, FormControl::colourWell, field);
  };
  return {shownWhen(isEither, rowOver("Default Symbol Colour", FormControl::toggle,
                                      &Record::currentWeatherMulticolour)),
          shownWhen(
              [](const StyleDraft& draft) {
                return isEither(draft) && !style(draft).currentWeatherMulticolour;
              },
              well("Set Weather Symbol Colour", &Record::currentWeatherSymbolColour)),
          shownWhen(isEither, well("Set Temperature Colour", &Record::currentWeatherTextColour)),
          shownWhen(isAdvanced, well("Set Location Text Colour", &Record::locationTextColour)),
          shownWhen(
              [](const StyleDraft& draft) {
                return isAdvanced(draft) && style(draft).showLocationSymbol;
              },
              well("Set Location Symbol Colour", &Record::locationSymbolColour)),
          shownWhen(
              [](const StyleDraft& draft) {
                return isAdvanced(draft) && style(draft).showCurrentWeatherDescription;
              },
              well("Set Description Colour", &Record::descriptionColour)),
          shownWhen(isNotCurrent, note("atom", dynamicNote))};
}

} // namespace vitrelle
