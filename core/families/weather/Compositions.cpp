#include "core/families/weather/Compositions.h"

#include "core/drawing/LineLimit.h"
#include "core/drawing/Shapes.h"
#include "core/drawing/Trim.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <utility>

namespace vitrelle {

namespace {

// The system's text styles, points.
constexpr double largeTitle = 34;
constexpr double title = 28;
constexpr double title2 = 22;
constexpr double headline = 17;
constexpr double caption = 12;
constexpr int bold = 700;

constexpr PlatformColour white{1, 1, 1, 1};
constexpr PlatformColour accent{0.39, 0.9, 0.89, 1};

constexpr double cellSide = 40;
constexpr double cellSpacing = 4;
constexpr Insets ringInsets{2.5, 2.5, 2.5, 2.5};
constexpr StrokeStyle ringStroke{.width = 3, .cap = LineCap::round};

std::string symbolName(const StoredWeather& weather) {
  return weather.weatherImage.value_or("sun.max");
}

View words(const std::optional<std::string>& words, double size, const PlatformColour& colour,
           int mostLines = 1) {
  const Font font{.size = size, .weight = bold};
  return inLines(text(words.value_or(""), font, colour, TextAlignment::centre), mostLines);
}

View condition(const StoredWeather& weather, const PlatformColour& colour) {
  return words(conditionText(weather.weatherComplexDesc.value_or("")), caption, colour);
}

View place(const StoredWeather& weather, const PlatformColour& textColour,
           const std::optional<PlatformColour>& symbolColour) {
  // More lines would drive what stands below out of a small widget.
  std::vector<View> parts{words(weather.cityName, headline, textColour, 2)};
  if (symbolColour) parts.push_back(symbol("location.fill", headline, *symbolColour, bold));
  return hstack(std::move(parts));
}

/// The symbol of the condition beside the temperature.
View present(const StoredWeather& weather, bool showSymbol, bool multicolour,
             const PlatformColour& symbolColour, const PlatformColour& textColour) {
  std::vector<View> parts;
  if (showSymbol) {
    parts.push_back(multicolour ? symbolInOwnColours(symbolName(weather), largeTitle, white, bold)
                                : symbol(symbolName(weather), largeTitle, symbolColour, bold));
  }
  parts.push_back(words(weather.weatherTemp, title, textColour));
  return hstack(std::move(parts));
}

/// Upright bars beside one another, as high as their hours' share of the highest.
View rainChart(const std::vector<TodaysRain>& rain, const PlatformColour& colour) {
  constexpr double barRadius = 16;
  constexpr double barShare = 0.7; // of an hour's room
  std::vector<double> heights;
  double highest = 0;
  for (const TodaysRain& hour : rain) {
    heights.push_back(std::isfinite(hour.max) ? std::max(hour.max, 0.0) : 0);
    highest = std::max(highest, heights.back());
  }
  if (highest == 0) return filled([](const PointRect&) { return Path(); }, colour);
  const auto lighter = [](double part) { return part + (1 - part) * 0.3; };
  const PlatformColour above{lighter(colour.red), lighter(colour.green), lighter(colour.blue),
                             colour.alpha};
  std::vector<View> bars;
  for (const double height : heights) {
    const auto bar = [share = height / highest](const PointRect& box) {
      const double width = box.width * barShare;
      const double tall = box.height * share;
      const PointRect place{box.x + (box.width - width) / 2, box.y + box.height - tall, width,
                            tall};
      return tall > 0 ? shapes::continuousRectangle(place, barRadius) : Path();
    };
    bars.push_back(filled(bar, LinearGradient{.stops = {{0, above}, {1, colour}}}));
  }
  return hstack(std::move(bars), Place::end, 0);
}

View cell(const View& view) {
  return framed(view, cellSide, cellSide);
}

View conditionCell(const StoredWeather& weather, const PlatformColour& colour) {
  const View sign =
      framed(padded(symbol(symbolName(weather), title2, colour, bold), ringInsets), 30, 30);
  return cell(zstack({padded(stroked(shapes::circle, ringStroke, colour), ringInsets), sign}));
}

View gauge(double dataInput, std::string image, const PlatformColour& colour) {
  return cell(CustomGauge{
      .dataInput = dataInput, .colours = colour, .image = std::move(image), .imageColour = colour}
                  .view());
}

/// Condition, UV, humidity, pressure.
std::array<View, 4> cells(const StoredWeather& weather, const PlatformColour& colour) {
  const double uv =
      weather.weatherUVIndex ? static_cast<double>(*weather.weatherUVIndex) / 15.0 : 2 / 15.0;
  const double pressure = weather.weatherPressure ? *weather.weatherPressure / 2000.0 : 0.5175;
  return {conditionCell(weather, colour), gauge(uv, "sun.max.fill", colour),
          gauge(weather.weatherHumidity.value_or(0.5), "humidity.fill", colour),
          gauge(pressure, "gauge.medium", colour)};
}

} // namespace

bool isRaining(std::string_view weatherDesc) {
  constexpr std::array<std::string_view, 6> arrayOfRaining{
      "drizzle", "heavyRain", "rain", "freezingRain", "freezingDrizzle", "thunderstorms"};
  return std::ranges::find(arrayOfRaining, weatherDesc) != arrayOfRaining.end();
}

std::string conditionText(std::string_view rawValue) {
  std::string words(rawValue);
  if (!words.empty() && words[0] >= 'a' && words[0] <= 'z')
    words[0] = static_cast<char>(words[0] - 'a' + 'A');
  return words;
}

View CurrentWeatherPlainText::view(const StoredWeather& weather) const {
  return present(weather, showWeatherIcon, iconMulticolour, iconColour, textColour);
}

View CurrentWeatherAdvancedText::view(const StoredWeather& weather) const {
  std::vector<View> parts{
      place(weather, locationTextColour,
            showLocationSymbol ? std::optional(locationIconColour) : std::nullopt),
      present(weather, true, weatherIconMulticolour, weatherIconColour, textColour)};
  if (showDescription) parts.push_back(condition(weather, descriptionColour));
  return vstack(std::move(parts));
}

View CurrentWeatherDynamic::view(const StoredWeather& weather, double screenWidth) const {
  if (!isRaining(weather.weatherDesc.value_or(""))) {
    const View now =
        hstack({symbolInOwnColours(symbolName(weather) + ".fill", largeTitle, white, bold),
                words(weather.weatherTemp, title, white)});
    return vstack({place(weather, accent, accent), now, condition(weather, white)});
  }
  const double width = screenWidth * 0.25;
  const auto line = [](const PointRect& box) { return shapes::continuousRectangle(box, 30); };
  return vstack({framed(rainChart(weather.rain, chartColor), width, screenWidth / 5),
                 framed(filled(line, white), width, 3),
                 present(weather, true, false, white, white)});
}

View CustomGauge::view() const {
  constexpr double start = 0.125;
  constexpr double end = 0.875;
  constexpr double quarterTurn = std::numbers::pi / 2; // puts the gap at the bottom
  const auto ring = [this](double to) {
    const auto part = [to](const PointRect& box) {
      return trimmed(shapes::circle(box), start, to);
    };
    return padded(rotated(stroked(part, ringStroke, colours), quarterTurn), ringInsets);
  };
  return zstack({ring(end), ring(dataInput * end), symbol(image, caption, imageColour, bold)});
}

View CurrentWeatherRings::view(const StoredWeather& weather) const {
  const auto [condition, uv, humidity, pressure] = cells(weather, colour);
  return hstack({condition, uv, humidity, pressure}, Place::centre, cellSpacing);
}

View CurrentWeatherRingsSmall::view(const StoredWeather& weather) const {
  const auto [condition, uv, humidity, pressure] = cells(weather, colour);
  return vstack({hstack({condition, uv}, Place::centre, cellSpacing),
                 hstack({humidity, pressure}, Place::centre, cellSpacing)},
                Place::centre, cellSpacing);
}

} // namespace vitrelle
