#include "host/weather/SymbolCodes.h"

#include <algorithm>
#include <array>

namespace vitrelle::host {

namespace {

using Condition = SymbolCodeRow::Condition;

constexpr Condition clear{"clear", "Clear"};
constexpr Condition mostlyClear{"mostlyClear", "Mostly Clear"};
constexpr Condition partlyCloudy{"partlyCloudy", "Partly Cloudy"};
constexpr Condition cloudy{"cloudy", "Cloudy"};
constexpr Condition foggy{"foggy", "Foggy"};
constexpr Condition sunShowers{"sunShowers", "Sun Showers"};
constexpr Condition drizzle{"drizzle", "Drizzle"};
constexpr Condition rain{"rain", "Rain"};
constexpr Condition heavyRain{"heavyRain", "Heavy Rain"};
constexpr Condition sleet{"sleet", "Sleet"};
constexpr Condition sunFlurries{"sunFlurries", "Sun Flurries"};
constexpr Condition flurries{"flurries", "Flurries"};
constexpr Condition snow{"snow", "Snow"};
constexpr Condition heavySnow{"heavySnow", "Heavy Snow"};
constexpr Condition isolated{"isolatedThunderstorms", "Isolated Thunderstorms"};
constexpr Condition scattered{"scatteredThunderstorms", "Scattered Thunderstorms"};
constexpr Condition thunder{"thunderstorms", "Thunderstorms"};
constexpr Condition strong{"strongStorms", "Strong Storms"};

/// The "lightss" are the service's own slips; it may mend them one day.
// clang-format off
constexpr auto rows = std::to_array<SymbolCodeRow>({
    {"clearsky", clear, clear, "sun.max", "moon.stars", "none"},
    {"fair", mostlyClear, mostlyClear, "sun.max", "moon.stars", "none"},
    {"partlycloudy", partlyCloudy, partlyCloudy, "cloud.sun", "cloud.moon", "none"},
    {"cloudy", cloudy, cloudy, "cloud", "cloud", "none"},
    {"fog", foggy, foggy, "cloud.fog", "cloud.fog", "none"},

    {"lightrain", drizzle, drizzle, "cloud.drizzle", "cloud.drizzle", "rain"},
    {"rain", rain, rain, "cloud.rain", "cloud.rain", "rain"},
    {"heavyrain", heavyRain, heavyRain, "cloud.heavyrain", "cloud.heavyrain", "rain"},
    {"lightrainshowers", sunShowers, drizzle, "cloud.sun.rain", "cloud.moon.rain", "rain"},
    {"rainshowers", sunShowers, rain, "cloud.sun.rain", "cloud.moon.rain", "rain"},
    {"heavyrainshowers", heavyRain, heavyRain, "cloud.heavyrain", "cloud.heavyrain", "rain"},
    {"lightrainandthunder", thunder, thunder, "cloud.bolt.rain", "cloud.bolt.rain", "rain"},
    {"rainandthunder", thunder, thunder, "cloud.bolt.rain", "cloud.bolt.rain", "rain"},
    {"heavyrainandthunder", strong, strong, "cloud.bolt.rain", "cloud.bolt.rain", "rain"},
    {"lightrainshowersandthunder", isolated, isolated, "cloud.sun.bolt", "cloud.moon.bolt", "rain"},
    {"rainshowersandthunder", scattered, scattered, "cloud.sun.bolt", "cloud.moon.bolt", "rain"},
    {"heavyrainshowersandthunder", strong, strong, "cloud.bolt.rain", "cloud.bolt.rain", "rain"},

    {"lightsleet", sleet, sleet, "cloud.sleet", "cloud.sleet", "sleet"},
    {"sleet", sleet, sleet, "cloud.sleet", "cloud.sleet", "sleet"},
    {"heavysleet", sleet, sleet, "cloud.sleet", "cloud.sleet", "sleet"},
    {"lightsleetshowers", sleet, sleet, "cloud.sleet", "cloud.sleet", "sleet"},
    {"sleetshowers", sleet, sleet, "cloud.sleet", "cloud.sleet", "sleet"},
    {"heavysleetshowers", sleet, sleet, "cloud.sleet", "cloud.sleet", "sleet"},
    {"lightsleetandthunder", thunder, thunder, "cloud.bolt", "cloud.bolt", "sleet"},
    {"sleetandthunder", thunder, thunder, "cloud.bolt", "cloud.bolt", "sleet"},
    {"heavysleetandthunder", thunder, thunder, "cloud.bolt", "cloud.bolt", "sleet"},
    {"lightssleetshowersandthunder", isolated, isolated, "cloud.sun.bolt", "cloud.moon.bolt", "sleet"},
    {"lightsleetshowersandthunder", isolated, isolated, "cloud.sun.bolt", "cloud.moon.bolt", "sleet"},
    {"sleetshowersandthunder", scattered, scattered, "cloud.sun.bolt", "cloud.moon.bolt", "sleet"},
    {"heavysleetshowersandthunder", thunder, thunder, "cloud.bolt", "cloud.bolt", "sleet"},

    {"lightsnow", flurries, flurries, "cloud.snow", "cloud.snow", "snow"},
    {"snow", snow, snow, "cloud.snow", "cloud.snow", "snow"},
    {"heavysnow", heavySnow, heavySnow, "cloud.snow", "cloud.snow", "snow"},
    {"lightsnowshowers", sunFlurries, flurries, "cloud.snow", "cloud.snow", "snow"},
    {"snowshowers", snow, snow, "cloud.snow", "cloud.snow", "snow"},
    {"heavysnowshowers", heavySnow, heavySnow, "cloud.snow", "cloud.snow", "snow"},
    {"lightsnowandthunder", thunder, thunder, "cloud.bolt", "cloud.bolt", "snow"},
    {"snowandthunder", thunder, thunder, "cloud.bolt", "cloud.bolt", "snow"},
    {"heavysnowandthunder", thunder, thunder, "cloud.bolt", "cloud.bolt", "snow"},
    {"lightssnowshowersandthunder", isolated, isolated, "cloud.sun.bolt", "cloud.moon.bolt", "snow"},
    {"lightsnowshowersandthunder", isolated, isolated, "cloud.sun.bolt", "cloud.moon.bolt", "snow"},
    {"snowshowersandthunder", scattered, scattered, "cloud.sun.bolt", "cloud.moon.bolt", "snow"},
    {"heavysnowshowersandthunder", thunder, thunder, "cloud.bolt", "cloud.bolt", "snow"},
});
// clang-format on

struct PartOfDay {
  std::string_view suffix;
  bool hasSun;
};

/// In polar twilight the sun stays below the horizon.
constexpr PartOfDay partsOfDay[] = {{"_day", true}, {"_night", false}, {"_polartwilight", false}};

} // namespace

std::span<const SymbolCodeRow> symbolCodeRows() {
  return rows;
}

std::optional<Sky> skyOf(std::string_view symbolCode) {
  bool hasSun = true;
  for (const PartOfDay& part : partsOfDay) {
    if (!symbolCode.ends_with(part.suffix)) continue;
    symbolCode.remove_suffix(part.suffix.size());
    hasSun = part.hasSun;
    break;
  }
  const auto row = std::ranges::find(rows, symbolCode, &SymbolCodeRow::code);
  if (row == rows.end()) return std::nullopt;
  const Condition& condition = hasSun ? row->day : row->night;
  return Sky{condition.rawValue, condition.words, hasSun ? row->symbolByDay : row->symbolByNight,
             row->precipitation};
}

} // namespace vitrelle::host
