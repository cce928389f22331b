#include "core/families/Families.h"

#include "core/families/battery/BatteryFamily.h"
#include "core/families/clock/ClockFamily.h"
#include "core/families/music/MusicFamily.h"
#include "core/families/text/TextFamily.h"
#include "core/families/weather/WeatherFamily.h"
#include "core/platform/FatalError.h"

#include <array>
#include <string>

namespace vitrelle {

namespace {

/// A family whose face and forms are still to be made: its records are listed and linked.
class FacelessFamily final : public StyleFamily {
 public:
  using StyleFamily::StyleFamily;

  View face(const Platform&, const StyleRecord&, FaceUse) const override { return spacer(); }
  bool hasEditor() const override { return false; }
  std::vector<FormRow> rows(EditorStep) const override { return {}; }
  void copy(EditorStep, const StyleDraft&, StyleRecord&) const override {}
};

} // namespace

const StyleFamily& styleFamily(std::string_view name) {
  static const TextFamily text;
  static const MusicFamily music;
  static const FacelessFamily image("image");
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
