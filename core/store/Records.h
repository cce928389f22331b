// The six kinds of style record: one saved look of a widget each. Their fields, in this order and
// spelling, are a file format that the widgets read. A default here is the value of a new record,
// unless the editor that makes it says otherwise.
#pragma once

#include "core/store/Colour.h"

#include <cstdint>
#include <string>

namespace vitrelle {

/// In a `*LinkedConfig` field: linked to no wallpaper style. Styles are numbered 0 to 11.
inline constexpr std::int64_t noLinkedConfig = 13;

struct textWidgetData {
  std::int64_t id = 0;            ///< always 0
  std::int64_t textConfigTag = 0; ///< index of the record in its array, for ever
  std::string textWidgetText = {};
  std::string textWidgetFont = {};  ///< PostScript name; empty for the system's font, as everywhere
  std::int64_t textWidgetSize = 18; ///< points, 10 to 80
  bool textWidgetShadow = true;
  Colour textWidgetTextColour = colours::white;
  std::int64_t textLinkedConfig = noLinkedConfig; ///< number of a wallpaper style

  bool operator==(const textWidgetData&) const = default;
};

struct musicWidgetData {
  std::int64_t id = 0; ///< always 0
  std::int64_t musicConfigTag = 0;
  bool musicShowAlbumArt = true;
  bool musicShowAlbumName = true;
  bool musicShowArtistName = true;
  Colour musicColourOfSongName = colours::white;
  Colour musicColourOfAlbumName = colours::white;
  Colour musicColourOfArtistName = colours::white;
  std::int64_t musicLinkedConfig = noLinkedConfig;

  bool operator==(const musicWidgetData&) const = default;
};

struct imageWidgetData {
  std::int64_t id = 0; ///< always 0
  std::int64_t imageConfigTag = 0;
  std::int64_t imageSize = 0;
  bool imageShowShadow = true;
  std::string imagePosition = "centre";
  std::int64_t imageLinkedConfig = noLinkedConfig;

  bool operator==(const imageWidgetData&) const = default;
};

struct batteryWidgetData {
  std::int64_t id = 0; ///< always 0
  std::int64_t batteryType = 0;
  std::int64_t batteryConfigTag = 0;
  bool batteryShowSymbol = true;
  std::string batterySymbol = "iphone";
  bool batteryShowPercentage = true;
  std::string batteryFont = "Helvetica";
  Colour batteryRingColour = colours::white;
  Colour batteryIconColour = colours::white;
  Colour batteryTextColour = colours::white;
  std::int64_t batteryLinkedConfig = noLinkedConfig;

  bool operator==(const batteryWidgetData&) const = default;
};

struct weatherWidgetData {
  std::int64_t id = 0; ///< 2 dynamic, 3 rings, 4 forecast
  std::int64_t weatherConfigTag = 0;
  bool showCurrentWeatherSymbol = true;
  bool currentWeatherMulticolour = true;
  Colour currentWeatherSymbolColour = colours::white;
  Colour currentWeatherTextColour = colours::white;
  bool showCurrentWeatherDescription = true;
  bool showLocationSymbol = true;
  Colour locationSymbolColour = colours::accent;
  Colour locationTextColour = colours::accent;
  Colour descriptionColour = colours::white;
  std::int64_t weatherLinkedConfig = noLinkedConfig;

  bool operator==(const weatherWidgetData&) const = default;
};

struct clockWidgetData {
  std::int64_t id = 0; ///< 0 analog, 1 digital, 2 date
  std::int64_t clockConfigTag = 0;
  bool clockWidgetDateEnabled = false;
  std::int64_t clockWidgetDateLength = 0;
  std::int64_t clockWidgetDatePlacement = 0;
  std::int64_t clockWidgetDateSize = 16; ///< points
  std::string clockWidgetDateFont = {};
  Colour clockWidgetDateColour = colours::white;
  std::int64_t clockWidgetAnalogComplexity = 0;
  std::int64_t clockWidgetAnalogDialShape = 0;
  Colour clockWidgetAnalogDialShapeColour = colours::white;
  Colour clockWidgetAnalogArmsColour = colours::white;
  std::int64_t clockWidgetAnalogHoursShape = 0;
  Colour clockWidgetAnalogHoursColour = colours::white;
  std::string clockWidgetDigitalFont = {};
  std::int64_t clockWidgetDigitalSize = 16; ///< points
  Colour clockWidgetDigitalColour = colours::white;
  std::int64_t clockLinkedConfig = noLinkedConfig;

  bool operator==(const clockWidgetData&) const = default;
};

} // namespace vitrelle
