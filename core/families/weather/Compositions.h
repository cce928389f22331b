// The looks of the Weather family, told from stored values. Sizes are those of the system's text
// styles.
#pragma once

#include "core/drawing/View.h"
#include "core/platform/PlatformColour.h"
#include "core/store/TodaysRain.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vitrelle {

/// What the group store holds of the weather. Absent is what was never fetched.
struct StoredWeather {
  std::optional<std::string> weatherImage = {};
  std::optional<std::string> weatherTemp = {};
  std::optional<std::string> weatherDesc = {};
  std::optional<std::string> weatherComplexDesc = {};
  std::optional<std::string> cityName = {};
  std::optional<double> weatherHumidity = {};
  std::optional<double> weatherPressure = {};
  std::optional<std::int64_t> weatherUVIndex = {};
  std::vector<TodaysRain> rain = {};
};

/// Whether the dynamic style turns to rain.
bool isRaining(std::string_view weatherDesc);

/// A condition's raw value as it is shown: its first letter large, and the rest as it stands.
std::string conditionText(std::string_view rawValue);

struct CurrentWeatherPlainText {
  bool showWeatherIcon = true;
  bool iconMulticolour = true;
  PlatformColour iconColour{1, 1, 1, 1};
  PlatformColour textColour{1, 1, 1, 1};

  View view(const StoredWeather& weather) const;
};

struct CurrentWeatherAdvancedText {
  bool showDescription = true;
  bool showLocationSymbol = true;
  bool weatherIconMulticolour = true;
  PlatformColour weatherIconColour{1, 1, 1, 1};
  PlatformColour locationIconColour{0.39, 0.9, 0.89, 1};
  PlatformColour locationTextColour{0.39, 0.9, 0.89, 1};
  PlatformColour textColour{1, 1, 1, 1};
  PlatformColour descriptionColour{1, 1, 1, 1};

  View view(const StoredWeather& weather) const;
};

struct CurrentWeatherDynamic {
  PlatformColour chartColor{0, 122 / 255.0, 1, 1};

  View view(const StoredWeather& weather, double screenWidth) const;
};

/// An open ring with a symbol in its middle. It is filled to 0.875 times the input of its circle,
/// of which the track leaves out the first eighth: below 1/7 nothing of it is seen.
struct CustomGauge {
  double dataInput = 0;
  PlatformColour colours = {};
  std::string image = {};
  PlatformColour imageColour = {};

  View view() const;
};

/// Four cells side by side.
struct CurrentWeatherRings {
  static constexpr double width = 172; ///< points

  PlatformColour colour = {}; ///< of all that is in it

  View view(const StoredWeather& weather) const;
};

/// The same cells in two rows, for a small widget.
struct CurrentWeatherRingsSmall {
  PlatformColour colour = {};

  View view(const StoredWeather& weather) const;
};

} // namespace vitrelle
