#include "core/families/Families.h"

#include "core/families/battery/BatteryFamily.h"
#include "core/families/clock/ClockFamily.h"
#include "core/families/image/ImageFamily.h"
#include "core/families/music/MusicFamily.h"
#include "core/families/text/TextFamily.h"
#include "core/families/weather/WeatherFamily.h"
#include "core/platform/FatalError.h"

#include <array>
#include <string>

namespace vitrelle {

const StyleFamily& styleFamily(std::string_view name) {
  static const TextFamily text;
  static const MusicFamily music;
  static const ImageFamily image;
  static const BatteryFamily battery;
  static const WeatherFamily weather;
  static const ClockFamily clock;
  static const std::array<const StyleFamily*, 6> all{&text,    &music,   &image,
                                                     &battery, &weather, &clock};
  for (const StyleFamily* family : all) {
    if (family->words().name == name) return *family;
  }
  fatalError("there is no widget family " + std::string(name));
}

} // namespace vitrelle
