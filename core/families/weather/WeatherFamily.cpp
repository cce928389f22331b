#include "core/families/weather/WeatherFamily.h"

#include "core/families/weather/AlphaWeatherView.h"
#include "core/families/weather/Compositions.h"
#include "core/families/weather/WeatherFetcher.h"
#include "core/families/weather/WeatherForms.h"
#include "core/lifecycle/Backdrop.h"
#include "core/lifecycle/StyleKinds.h"

#include <algorithm>
#include <array>
#include <limits>
#include <memory>
#include <string>
#include <utility>

namespace vitrelle {

namespace {

using Record = weatherWidgetData;

using complexity::advanced;
using complexity::plain;
/// Between a face and the edges of a tile or a widget, points.
constexpr double inset = 8;

template <class T>
std::optional<T> stored(const Platform& platform, const Key<T>& key) {
  return StoredValue<T>(platform, key).get();
}

StoredWeather storedWeather(const Platform& platform) {
  const auto rain = stored(platform, keys::currentLocationRainData);
  return {.weatherImage = stored(platform, keys::storedWeatherImage),
          .weatherTemp = stored(platform, keys::storedWeatherTemperature),
          .weatherDesc = stored(platform, keys::storedCurrentWeatherDescription),
          .weatherComplexDesc = stored(platform, keys::storedCurrentWeatherComplexDescription),
          .cityName = stored(platform, keys::storedCityName),
          .weatherHumidity = stored(platform, keys::storedHumidity),
          .weatherPressure = stored(platform, keys::storedPressure),
          .weatherUVIndex = stored(platform, keys::storedUVIndex),
          .rain = rain ? decodeRain(*rain).value_or(std::vector<TodaysRain>())
                       : std::vector<TodaysRain>()};
}

/// The system's quieter label colour, on light and on dark grounds.
constexpr PlatformColour secondaryOnLight{60 / 255.0, 60 / 255.0, 67 / 255.0, 0.6};
constexpr PlatformColour secondaryOnDark{235 / 255.0, 235 / 255.0, 245 / 255.0, 0.6};

PlatformColour secondaryColour(const Platform& platform) {
  return currentAppearance(platform) == darkStyle ? secondaryOnDark : secondaryOnLight;
}

bool isSupported(const Platform& platform) {
  return platform.device.isOperatingSystemAtLeast({16, 0, 0});
}

View unsupported() {
  return text("Weather isn't supported", {}, {1, 1, 1, 1}, TextAlignment::centre);
}

View plainText(const Platform& platform, const Record& style) {
  return CurrentWeatherPlainText{.showWeatherIcon = style.showCurrentWeatherSymbol,
                                 .iconMulticolour = style.currentWeatherMulticolour,
                                 .iconColour = platformColour(style.currentWeatherSymbolColour),
                                 .textColour = platformColour(style.currentWeatherTextColour)}
      .view(storedWeather(platform));
}

View advancedText(const Platform& platform, const Record& style) {
  return CurrentWeatherAdvancedText{
      .showDescription = style.showCurrentWeatherDescription,
      .showLocationSymbol = style.showLocationSymbol,
      .weatherIconMulticolour = style.currentWeatherMulticolour,
      .weatherIconColour = platformColour(style.currentWeatherSymbolColour),
      .locationIconColour = platformColour(style.locationSymbolColour),
      .locationTextColour = platformColour(style.locationTextColour),
      .textColour = platformColour(style.currentWeatherTextColour),
      .descriptionColour = platformColour(style.descriptionColour)}
      .view(storedWeather(platform));
}

View dynamicWeather(const Platform& platform) {
  return CurrentWeatherDynamic{}.view(storedWeather(platform),
                                      platform.device.screenBounds().width);
}

/// A page of the preview has no edge beside the words, and makes them smaller itself.
View besideEdges(const View& words, FaceUse use) {
  constexpr double least = 0.8;
  if (use == FaceUse::preview) return words;
  return padded(shrunkToFit(words, least), {.leading = inset, .trailing = inset});
}

/// As wide as it is, unless the place is narrower.
View rings(const Platform& platform, FaceUse use) {
  const PlatformColour colour = secondaryColour(platform);
  if (use == FaceUse::widget)
    return CurrentWeatherRingsSmall{.colour = colour}.view(storedWeather(platform));
  const double screen = platform.device.screenBounds().width;
  const double room = use == FaceUse::gallery   ? screen / 2.5 - 2 * inset
                      : use == FaceUse::preview ? screen * 0.25
                                                : CurrentWeatherRings::width;
  const View whole = CurrentWeatherRings{.colour = colour}.view(storedWeather(platform));
  return scaled(whole, std::min(1.0, room / CurrentWeatherRings::width));
}

// In the order in which they are offered.

View currentWeatherSample(const Platform& platform) {
  return isSupported(platform) ? plainText(platform, {}) : unsupported();
}
View dynamicSample(const Platform& platform) {
  if (!isSupported(platform)) return unsupported();
  const View whole = dynamicWeather(platform);
  constexpr double anyRoom = std::numeric_limits<double>::infinity();
  const double height = whole.node().size(platform.drawing, {anyRoom, anyRoom}).height;
  return scaled(whole, std::min(1.0, (StyleKinds::sampleHeight - 2 * inset) / height));
}
View ringsSample(const Platform& platform) { // its ground is dark in either appearance
  return isSupported(platform)
             ? CurrentWeatherRings{.colour = secondaryOnDark}.view(storedWeather(platform))
             : unsupported();
}

constexpr std::array<StyleKind, 3> weatherKinds{
    {{"currentWeather", "Current Weather", currentWeatherSample},
     {"dynamic", "Dynamic Weather", dynamicSample},
     {"rings", "Rings", ringsSample}}};

constexpr std::array<std::string_view, 4> pickedStyles{"currentWeather", "dynamic", "rings",
                                                       "forecast"};

/// What a style of the kind is stored as; the complexity tells the current weather's.
std::int64_t idOf(WeatherKind kind, std::int64_t complexity) {
  switch (kind) {
  case WeatherKind::currentWeather:
    return complexity;
  case WeatherKind::dynamic:
    return 2;
  case WeatherKind::rings:
    return 3;
  case WeatherKind::forecast:
    return 4;
  }
  return complexity;
}

/// What keeps the faces alive: the fetches, and the eyes on what they store.
class WeatherLife final {
 public:
  WeatherLife(const Platform& platform, std::function<void()> changed)
      : platform_(platform), changed_(std::move(changed)), fetcher_(platform) {
    follow(keys::storedWeatherImage, keys::storedWeatherTemperature,
           keys::storedCurrentWeatherDescription, keys::storedCurrentWeatherComplexDescription,
           keys::storedCityName, keys::storedHumidity, keys::storedPressure, keys::storedUVIndex,
           keys::currentLocationRainData);
  }

  void start() {
    following_ = true;
    city_ = resolveCityName(platform_);
    fetcher_.getCurrentWeather([this] {
      const auto now = stored(platform_, keys::storedCurrentWeatherDescription);
      if (isRaining(now.value_or(""))) fetcher_.getRainData();
    });
  }

 private:
  template <class... Keys>
  void follow(const Keys&... keys) {
    (values_.push_back(followed(keys)), ...);
  }
  template <class T>
  Subscription followed(const Key<T>& key) {
    return StoredValue<T>(platform_, key).onChange([this](const std::optional<T>&) {
      if (following_) changed_();
    });
  }

  const Platform& platform_;
  std::function<void()> changed_;
  bool following_ = false; ///< not of what is there already
  WeatherFetcher fetcher_;
  Subscription city_;
  std::vector<Subscription> values_;
};

} // namespace

WeatherKind weatherKind(std::string_view pickedStyle) {
  const auto* const found = std::ranges::find(pickedStyles, pickedStyle);
  return found == pickedStyles.end() ? WeatherKind::currentWeather
                                     : static_cast<WeatherKind>(found - pickedStyles.begin());
}

WeatherKind weatherKind(std::int64_t id) {
  if (id == 2) return WeatherKind::dynamic;
  return id == 3 ? WeatherKind::rings : WeatherKind::currentWeather;
}

View WeatherFamily::face(const Platform& platform, const StyleRecord& record, FaceUse use) const {
  const auto& style = std::get<Record>(record);
  if (!isSupported(platform)) return unsupported();
  switch (weatherKind(style.id)) {
  case WeatherKind::dynamic:
    return besideEdges(dynamicWeather(platform), use);
  case WeatherKind::rings:
    return rings(platform, use);
  case WeatherKind::currentWeather:
  case WeatherKind::forecast:
    return besideEdges(
        style.id == advanced ? advancedText(platform, style) : plainText(platform, style), use);
  }
  return spacer();
}

View WeatherFamily::draftFace(const Platform& platform, const StyleDraft& draft,
                              FaceUse use) const {
  const auto& style = std::get<Record>(draft.record);
  if (!isSupported(platform)) return unsupported();
  switch (weatherKind(draft.kind)) {
  case WeatherKind::dynamic:
    return besideEdges(dynamicWeather(platform), use);
  case WeatherKind::rings:
    return rings(platform, use);
  case WeatherKind::currentWeather:
    if (style.id == plain) return besideEdges(plainText(platform, style), use);
    return style.id == advanced ? besideEdges(advancedText(platform, style), use) : spacer();
  case WeatherKind::forecast:
    return spacer();
  }
  return spacer();
}

Subscription WeatherFamily::live(const Platform& platform, std::function<void()> changed) const {
  auto life = std::make_shared<WeatherLife>(platform, std::move(changed));
  life->start();
  return Subscription([life = std::move(life)]() mutable { life.reset(); });
}

std::unique_ptr<Gate> WeatherFamily::gate(const Platform& platform) const {
  return std::make_unique<AlphaWeatherView>(platform);
}

std::span<const StyleKind> WeatherFamily::kinds() const {
  return weatherKinds;
}

std::optional<FootLink> WeatherFamily::kindsFoot() const {
  // U+F8FF is the platform's logo.
  return FootLink{"All weather data is provided by \uF8FFWeather ›",
                  [](const Platform& platform) { platform.weatherService.openAttribution(); }};
}

std::string WeatherFamily::kindOf(const StyleRecord& record) const {
  const WeatherKind kind = weatherKind(std::get<Record>(record).id);
  return std::string(pickedStyles[static_cast<std::size_t>(kind)]);
}

StyleDraft WeatherFamily::newDraft(std::string_view kind) const {
  const WeatherKind picked = weatherKind(kind);
  return {.record = Record{.id = idOf(picked, plain)},
          .kind = std::string(pickedStyles[static_cast<std::size_t>(picked)])};
}

std::vector<FormRow> WeatherFamily::rows(EditorStep step) const {
  return step == EditorStep::setup ? weatherSetupRows() : weatherColourRows();
}

void WeatherFamily::copy(EditorStep step, const StyleDraft& from, StyleRecord& to) const {
  const auto& draft = std::get<Record>(from.record);
  auto& style = std::get<Record>(to);
  if (step == EditorStep::second) {
    style.currentWeatherMulticolour = draft.currentWeatherMulticolour;
    style.currentWeatherSymbolColour = draft.currentWeatherSymbolColour;
    style.currentWeatherTextColour = draft.currentWeatherTextColour;
    style.locationSymbolColour = draft.locationSymbolColour;
    style.locationTextColour = draft.locationTextColour;
    style.descriptionColour = draft.descriptionColour;
    return;
  }
  style.id = idOf(weatherKind(from.kind), draft.id);
  style.showCurrentWeatherSymbol = draft.showCurrentWeatherSymbol;
  style.showCurrentWeatherDescription = draft.showCurrentWeatherDescription;
  style.showLocationSymbol = draft.showLocationSymbol;
}

} // namespace vitrelle
