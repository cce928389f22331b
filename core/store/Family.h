// The six widget families, as far as the store knows them: under which keys each keeps its records
// and which of them is chosen.
#pragma once

#include "core/store/Keys.h"
#include "core/store/Records.h"

#include <tuple>

namespace vitrelle {

template <class Record>
struct Family {
  const char* name;
  const char* recordName;
  Key<Data> records;
  Key<std::int64_t> selected; ///< index of the chosen record
  std::int64_t Record::*tag;  ///< index of the record at its creation
  std::int64_t Record::*linked;
};

namespace families {

inline constexpr Family<textWidgetData> text{"text",
                                             "textWidgetData",
                                             keys::savedTextWidgetData,
                                             keys::textSelectedConfig,
                                             &textWidgetData::textConfigTag,
                                             &textWidgetData::textLinkedConfig};
inline constexpr Family<musicWidgetData> music{"music",
                                               "musicWidgetData",
                                               keys::savedMusicWidgetData,
                                               keys::musicSelectedConfig,
                                               &musicWidgetData::musicConfigTag,
                                               &musicWidgetData::musicLinkedConfig};
inline constexpr Family<imageWidgetData> image{"image",
                                               "imageWidgetData",
                                               keys::savedImageWidgetData,
                                               keys::imageSelectedConfig,
                                               &imageWidgetData::imageConfigTag,
                                               &imageWidgetData::imageLinkedConfig};
inline constexpr Family<batteryWidgetData> battery{"battery",
                                                   "batteryWidgetData",
                                                   keys::savedBatteryWidgetData,
                                                   keys::batterySelectedConfig,
                                                   &batteryWidgetData::batteryConfigTag,
                                                   &batteryWidgetData::batteryLinkedConfig};
inline constexpr Family<weatherWidgetData> weather{"weather",
                                                   "weatherWidgetData",
                                                   keys::savedWeatherWidgetData,
                                                   keys::weatherSelectedConfig,
                                                   &weatherWidgetData::weatherConfigTag,
                                                   &weatherWidgetData::weatherLinkedConfig};
inline constexpr Family<clockWidgetData> clock{"clock",
                                               "clockWidgetData",
                                               keys::savedClockWidgetData,
                                               keys::clockSelectedConfig,
                                               &clockWidgetData::clockConfigTag,
                                               &clockWidgetData::clockLinkedConfig};

inline constexpr std::tuple all{text, music, image, battery, weather, clock};

} // namespace families

/// Calls `visit` with each family.
template <class Visit>
constexpr void forEachFamily(Visit visit) {
  std::apply([&](const auto&... family) { (visit(family), ...); }, families::all);
}

/// A record with the values of a new one and the tag that its place in the array gives it.
template <class Record>
Record newRecord(const Family<Record>& family, const std::vector<Record>& existing) {
  Record record;
  record.*family.tag = static_cast<std::int64_t>(existing.size());
  return record;
}

} // namespace vitrelle
