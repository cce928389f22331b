// The second step of an editor: the colours of the style, beside those of the wallpaper. Saving
// makes the style the family's current one.
#pragma once

#include "core/colour/SuggestedColours.h"
#include "core/lifecycle/StyleEditor.h"
#include "core/store/StoredValue.h"

#include <cstdint>
#include <optional>
#include <utility>

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

/// What the step before saved, and where. The store may not have taken it.
template <class Record>
struct SavedRecord {
  std::int64_t index = 0;
  Record record;
};

template <class Record>
class StyleColours final : public StyleSecondStep {
 public:
  /// The family must outlive it. Without a step before, a new style is the last one.
  StyleColours(const Platform& platform, const StyleFamily<Record>& family, const EditorTask& task,
               std::optional<SavedRecord<Record>> saved = std::nullopt)
      : StyleSecondStep(platform, family.words(), task),
        family_(family),
        saved_(std::move(saved)),
        stored_(platform, family.store),
        selected_(platform, family.store.selected),
        form_(family, family.secondRows) {}

  void appear() override {
    readImg();
    stored_.load();
    index_ = findRecord();
    if (const Record* record = stored_.at(index_)) {
      form_.record = *record;
    } else if (saved_) {
      form_.record = saved_->record;
    }
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

  /// Where there is no record to work on, nothing is written, and the flow ends as if it were.
  bool save() override {
    bool saved = false;
    if (Record* record = stored_.at(index_)) {
      family_.copySecond(form_.record, *record);
      saved = stored_.save();
      if (isStored()) selected_.set(index_);
    }
    platform().haptics.success();
    return saved;
  }

 private:
  static constexpr std::int64_t nowhere = -1;

  /// The index of the record that is worked on. What the store did not take from the step before is
  /// put into this screen's copy once more: no other record may stand in for it.
  std::int64_t findRecord() {
    const auto count = static_cast<std::int64_t>(stored_.count());
    const bool editing = task().mode == EditorMode::edit;
    if (!saved_) return editing ? task().configNumber : count - 1;
    Record* there = stored_.at(saved_->index);
    if (there != nullptr && *there == saved_->record) return saved_->index;
    if (editing) {
      if (there != nullptr) family_.copySetup(saved_->record, *there);
      return saved_->index;
    }
    // Fewer than the step before saw: writing this copy would lose those that can't be read now.
    if (count < saved_->index || stored_.count() >= maximumWidgetStyles) return nowhere;
    Record again = newRecord(family_.store, stored_.records);
    family_.copySetup(saved_->record, again);
    stored_.records.push_back(std::move(again));
    return count;
  }
  bool isStored() const {
    FamilyRecords<Record> now(platform(), family_.store);
    now.load();
    return now.at(index_) != nullptr;
  }

  const StyleFamily<Record>& family_;
  std::optional<SavedRecord<Record>> saved_;
  FamilyRecords<Record> stored_;
  StoredValue<std::int64_t> selected_;
  EditorForm<Record> form_;
  std::int64_t index_ = nowhere;
};

} // namespace vitrelle
