// The Battery family: a ring, a square or a line that shows how full the battery is.
#pragma once

#include "core/lifecycle/StyleFamily.h"

namespace vitrelle {

class BatteryFamily final : public StyleFamily {
 public:
  BatteryFamily() : StyleFamily(families::battery.name) {}

  View face(const Platform& platform, const StyleRecord& record, FaceUse use) const override;
  /// Has the battery monitored.
  Subscription live(const Platform& platform, std::function<void()> changed) const override;
  PointRect previewBox(const Platform& platform, const PointSize& page) const override;

  /// A new style is stored white, and its colours begin green and grey.
  StyleDraft secondDraft(const Platform& platform, const StyleRecord& record,
                         bool isNew) const override;
  std::vector<FormRow> rows(EditorStep step) const override;
  void copy(EditorStep step, const StyleDraft& from, StyleRecord& to) const override;
};

} // namespace vitrelle
