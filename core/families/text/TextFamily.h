// The Text family: a few words in a font, a size and a colour.
#pragma once

#include "core/lifecycle/StyleFamily.h"

namespace vitrelle {

class TextFamily final : public StyleFamily {
 public:
  TextFamily() : StyleFamily(families::text.name) {}

  View face(const Platform& platform, const StyleRecord& record, FaceUse use) const override;
  View draftFace(const Platform& platform, const StyleDraft& draft, FaceUse use) const override;
  /// Colours are the second step's: the setup and the linking screen show white words.
  StyleDraft draftOf(const StyleRecord& record) const override;
  std::vector<FormRow> rows(EditorStep step) const override;
  void copy(EditorStep step, const StyleDraft& from, StyleRecord& to) const override;
};

} // namespace vitrelle
