// The Music family: what the system's music player plays.
#pragma once

#include "core/lifecycle/StyleFamily.h"

namespace vitrelle {

class MusicFamily final : public StyleFamily {
 public:
  MusicFamily() : StyleFamily(families::music.name) {}

  /// By the size of the widget that shows it: the small layout stands for small ones, the medium
  /// one on the editor's pages and those of the preview.
  View face(const Platform& platform, const StyleRecord& record, FaceUse use) const override;
  /// Follows what is played.
  Subscription live(const Platform& platform, std::function<void()> changed) const override;
  std::unique_ptr<Gate> gate(const Platform& platform) const override;
  PointRect previewBox(const Platform& platform, const PointSize& page) const override;

  std::vector<FormRow> rows(EditorStep step) const override;
  void copy(EditorStep step, const StyleDraft& from, StyleRecord& to) const override;
};

} // namespace vitrelle
