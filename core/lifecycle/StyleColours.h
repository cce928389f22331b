// The second step of an editor: the colours of the style, beside those of the wallpaper. Saving
// makes the style the family's current one.
#pragma once

#include "core/colour/SuggestedColours.h"
#include "core/lifecycle/StyleEditor.h"
#include "core/store/StoredValue.h"

namespace vitrelle {

/// The part that knows no record.
class StyleSecondStep : public StyleEditor {
 public:
  /// Works the suggested colours out a moment later, when the screen has been drawn once. A style
  /// in use without the whole screenshot of the present appearance is a fatal error.
  void startSuggestions();
  const SuggestedColours& suggestions() const { return suggestions_; }
  /// None for a family without colours.
  std::optional<SuggestingEditor> suggesting() const { return suggestingEditor(words().name); }

 protected:
  using StyleEditor::StyleEditor;

 private:
  void suggest();

  SuggestedColours suggestions_;
  Subscription task_; ///< ends with the screen
};

template <class Record>
class StyleColours final : public StyleSecondStep {
 public:
  /// The family must outlive it.
  StyleColours(const Platform& platform, const StyleFamily<Record>& family, const EditorTask& task)
      : StyleSecondStep(platform, family.words(), task),
        family_(family),
        stored_(platform, family.store),
        selected_(platform, family.store.selected),
        form_(family, family.secondRows) {}

  void appear() override {
    readImg();
    stored_.load();
    if (const Record* record = stored_.at(index())) form_.record = *record;
    changed();
  }
  std::vector<ShownRow> rows() const override { return form_.shownRows(); }
  void setValue(std::size_t row, const FormValue& value) override {
    form_.setValue(row, value);
    changed();
  }
  DisplayList face(const PointSize& frame) const override {
    return form_.face(platform(), FaceUse::second, frame);
  }

  /// Where the store lost the record since the step before, nothing is written, and the flow ends
  /// as if it were.
  void save() override {
    if (Record* record = stored_.at(index())) {
      family_.copySecond(form_.record, *record);
      stored_.save();
      selected_.set(index());
    }
    platform().haptics.success();
  }

 private:
  std::int64_t index() const {
    return task().mode == EditorMode::edit ? task().configNumber
                                           : static_cast<std::int64_t>(stored_.count()) - 1;
  }

  const StyleFamily<Record>& family_;
  FamilyRecords<Record> stored_;
  StoredValue<std::int64_t> selected_;
  EditorForm<Record> form_;
};

} // namespace vitrelle
