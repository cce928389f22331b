// The first step of an editor: what a style shows. Saving makes the record, or changes it.
#pragma once

#include "core/lifecycle/StyleEditor.h"
#include "core/lifecycle/StyleSecond.h"

#include <memory>
#include <optional>

namespace vitrelle {

class StyleSetup final : public StyleEditor {
 public:
  /// The platform and the family must outlive it.
  StyleSetup(const Platform& platform, const StyleFamily& family, EditorTask task);

  void appear() override;
  /// A new record is linked to nothing, and what the next step edits has the values of a new one
  /// until then. Editing a record that is not there is a fatal error.
  Saved save() override;
  /// The step after it, over the record that was saved, whether the store took it or not.
  std::unique_ptr<StyleSecond> next() const;

 private:
  StyleRecords stored_;
  std::optional<SavedRecord> saved_;
};

} // namespace vitrelle
