// The second step of an editor: the colours of the style, beside those of the wallpaper, or
// whatever else the family sets there. Saving makes the style the family's current one.
#pragma once

#include "core/colour/SuggestedColours.h"
#include "core/lifecycle/StyleEditor.h"
#include "core/store/StoredValue.h"

#include <cstdint>
#include <optional>

namespace vitrelle {

/// What the step before saved, and where. The store may not have taken it.
struct SavedRecord {
  RecordIndex index;
  StyleRecord record;
  std::optional<Image> picture = {}; ///< of the draft
  bool isKept = true;                ///< whether what the draft held beside the record was stored
};

class StyleSecond final : public StyleEditor {
 public:
  /// The platform and the family must outlive it. Without a step before, a new style is the last
  /// one.
  StyleSecond(const Platform& platform, const StyleFamily& family, EditorTask task,
              std::optional<SavedRecord> saved = std::nullopt);

  void appear() override;
  /// Where there is no record to work on, nothing is written, and the flow ends as if it were.
  /// What the step before could not keep is kept now, or nothing is saved.
  Saved save() override;

  /// Works the suggested colours out a moment later, when the screen has been drawn once. A style
  /// in use without the whole screenshot of the present appearance is a fatal error.
  void startSuggestions();
  const SuggestedColours& suggestions() const { return suggestions_; }
  /// None for a family without colours.
  std::optional<SuggestingEditor> suggesting() const;

 private:
  RecordIndex findRecord();
  bool mustKeep() const;
  bool isStored() const;
  void suggest();

  std::optional<SavedRecord> saved_;
  StyleRecords stored_;
  StoredValue<std::int64_t> selected_;
  RecordIndex index_;
  SuggestedColours suggestions_;
  Subscription task_; ///< ends with the screen
};

} // namespace vitrelle
