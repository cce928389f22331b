// The fields of each record, told once: encoding, decoding and the documentation's tables all walk
// these lists.
#pragma once

#include "core/store/Records.h"

#include <tuple>

namespace vitrelle {

template <class Record, class Value>
struct Field {
  const char* name;
  Value Record::*member;
};
template <class Record, class Value>
Field(const char*, Value Record::*) -> Field<Record, Value>;

/// Specialised below for each record: `all`, its fields in the order in which they are stored.
template <class Record>
struct RecordFields;

// Takes the stored name and the member from one word, so that the two can't drift apart.
#define VITRELLE_FIELD(name)                                                                       \
  Field {                                                                                          \
#name, &Record::name                                                                           \
  }

template <>
struct RecordFields<textWidgetData> {
  using Record = textWidgetData;
  static constexpr std::tuple all{
      VITRELLE_FIELD(id),
      VITRELLE_FIELD(textConfigTag),
      VITRELLE_FIELD(textWidgetText),
      VITRELLE_FIELD(textWidgetFont),
      VITRELLE_FIELD(textWidgetSize),
      VITRELLE_FIELD(textWidgetShadow),
      VITRELLE_FIELD(textWidgetTextColour),
      VITRELLE_FIELD(textLinkedConfig),
  };
};

template <>
struct RecordFields<musicWidgetData> {
  using Record = musicWidgetData;
  static constexpr std::tuple all{
      VITRELLE_FIELD(id),
      VITRELLE_FIELD(musicConfigTag),
      VITRELLE_FIELD(musicShowAlbumArt),
      VITRELLE_FIELD(musicShowAlbumName),
      VITRELLE_FIELD(musicShowArtistName),
      VITRELLE_FIELD(musicColourOfSongName),
      VITRELLE_FIELD(musicColourOfAlbumName),
      VITRELLE_FIELD(musicColourOfArtistName),
      VITRELLE_FIELD(musicLinkedConfig),
  };
};

template <>
struct RecordFields<imageWidgetData> {
  using Record = imageWidgetData;
  static constexpr std::tuple all{
      VITRELLE_FIELD(id),
      VITRELLE_FIELD(imageConfigTag),
      VITRELLE_FIELD(imageSize),
      VITRELLE_FIELD(imageShowShadow),
      VITRELLE_FIELD(imagePosition),
      VITRELLE_FIELD(imageLinkedConfig),
  };
};

template <>
struct RecordFields<batteryWidgetData> {
  using Record = batteryWidgetData;
  static constexpr std::tuple all{
      VITRELLE_FIELD(id),
      VITRELLE_FIELD(batteryType),
      VITRELLE_FIELD(batteryConfigTag),
      VITRELLE_FIELD(batteryShowSymbol),
      VITRELLE_FIELD(batterySymbol),
      VITRELLE_FIELD(batteryShowPercentage),
      VITRELLE_FIELD(batteryFont),
      VITRELLE_FIELD(batteryRingColour),
      VITRELLE_FIELD(batteryIconColour),
      VITRELLE_FIELD(batteryTextColour),
      VITRELLE_FIELD(batteryLinkedConfig),
  };
};

template <>
struct RecordFields<weatherWidgetData> {
  using Record = weatherWidgetData;
  static constexpr std::tuple all{
      VITRELLE_FIELD(id),
      VITRELLE_FIELD(weatherConfigTag),
      VITRELLE_FIELD(showCurrentWeatherSymbol),
      VITRELLE_FIELD(currentWeatherMulticolour),
      VITRELLE_FIELD(currentWeatherSymbolColour),
      VITRELLE_FIELD(currentWeatherTextColour),
      VITRELLE_FIELD(showCurrentWeatherDescription),
      VITRELLE_FIELD(showLocationSymbol),
      VITRELLE_FIELD(locationSymbolColour),
      VITRELLE_FIELD(locationTextColour),
      VITRELLE_FIELD(descriptionColour),
      VITRELLE_FIELD(weatherLinkedConfig),
  };
};

template <>
struct RecordFields<clockWidgetData> {
  using Record = clockWidgetData;
  static constexpr std::tuple all{
      VITRELLE_FIELD(id),
      VITRELLE_FIELD(clockConfigTag),
      VITRELLE_FIELD(clockWidgetDateEnabled),
      VITRELLE_FIELD(clockWidgetDateLength),
      VITRELLE_FIELD(clockWidgetDatePlacement),
      VITRELLE_FIELD(clockWidgetDateSize),
      VITRELLE_FIELD(clockWidgetDateFont),
      VITRELLE_FIELD(clockWidgetDateColour),
      VITRELLE_FIELD(clockWidgetAnalogComplexity),
      VITRELLE_FIELD(clockWidgetAnalogDialShape),
      VITRELLE_FIELD(clockWidgetAnalogDialShapeColour),
      VITRELLE_FIELD(clockWidgetAnalogArmsColour),
      VITRELLE_FIELD(clockWidgetAnalogHoursShape),
      VITRELLE_FIELD(clockWidgetAnalogHoursColour),
      VITRELLE_FIELD(clockWidgetDigitalFont),
      VITRELLE_FIELD(clockWidgetDigitalSize),
      VITRELLE_FIELD(clockWidgetDigitalColour),
      VITRELLE_FIELD(clockLinkedConfig),
  };
};

#undef VITRELLE_FIELD

/// Calls `visit` with each field of the record, in order.
template <class Record, class Visit>
constexpr void forEachField(Visit visit) {
  std::apply([&](const auto&... fields) { (visit(fields), ...); }, RecordFields<Record>::all);
}

} // namespace vitrelle
