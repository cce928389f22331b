// The Time family: an analog clock, a digital one, or the date alone.
#pragma once

#include "core/lifecycle/StyleFamily.h"

#include <string_view>

namespace vitrelle {

/// The kinds as records number them. Any other number is an analog clock.
enum class ClockKind { analog = 0, digital = 1, date = 2 };

/// The same as the screens hand it on: "analog", "digital", "date".
ClockKind clockKind(std::string_view pickedStyle);
ClockKind clockKind(std::int64_t id);

class ClockFamily final : public StyleFamily {
 public:
  ClockFamily() : StyleFamily(families::clock.name) {}

  View face(const Platform& platform, const StyleRecord& record, FaceUse use) const override;
  PointRect previewBox(const Platform& platform, const PointSize& page) const override;

  std::span<const StyleKind> kinds() const override;
  std::string kindOf(const StyleRecord& record) const override;
  StyleDraft newDraft(std::string_view kind) const override;
  std::vector<FormRow> rows(EditorStep step) const override;
  void copy(EditorStep step, const StyleDraft& from, StyleRecord& to) const override;
};

} // namespace vitrelle
