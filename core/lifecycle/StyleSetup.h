// The first step of an editor: what a style shows. Saving makes the record, or changes it.
#pragma once

#include "core/lifecycle/StyleColours.h"
#include "core/platform/FatalError.h"

#include <cstdint>
#include <memory>
#include <optional>

namespace vitrelle {

/// The part that knows no record.
class StyleFirstStep : public StyleEditor {
 public:
  /// The step after it, over the record that was saved, whether the store took it or not.
  virtual std::unique_ptr<StyleSecondStep> next() const = 0;

 protected:
  using StyleEditor::StyleEditor;
};

template <class Record>
class StyleSetup final : public StyleFirstStep {
 public:
  /// The family must outlive it.
  StyleSetup(const Platform& platform, const StyleFamily<Record>& family, const EditorTask& task)
      : StyleFirstStep(platform, family.words(), task),
        family_(family),
        stored_(platform, family.store),
        form_(family, family.setupRows) {}

  void appear() override {
    readImg();
    stored_.load();
    if (task().mode == EditorMode::edit) {
      // Colours are none of this screen's: its preview is white, as that of a new style is.
      if (const Record* record = stored_.at(task().configNumber))
        family_.copySetup(*record, form_.record);
    }
    changed();
  }
  std::vector<ShownRow> rows() const override { return form_.shownRows(); }
  void setValue(std::size_t row, const FormValue& value) override {
    form_.setValue(row, value);
    changed();
  }
  DisplayList face(const PointSize& frame) const override {
    return form_.face(platform(), FaceUse::setup, frame);
  }

  /// The colours of a new record are white, and it is linked to nothing, until the steps after.
  /// Editing a record that is not there is a fatal error.
  bool save() override {
    platform().haptics.lightImpact();
    std::int64_t index = task().configNumber;
    if (task().mode == EditorMode::create) {
      index = static_cast<std::int64_t>(stored_.count());
      stored_.records.push_back(newRecord(family_.store, stored_.records));
    }
    Record* record = stored_.at(index);
    if (record == nullptr) fatalError("there is no widget style to edit at this index");
    family_.copySetup(form_.record, *record);
    saved_ = {index, *record};
    return stored_.save();
  }
  std::unique_ptr<StyleSecondStep> next() const override {
    return std::make_unique<StyleColours<Record>>(platform(), family_, task(), saved_);
  }

 private:
  const StyleFamily<Record>& family_;
  FamilyRecords<Record> stored_;
  EditorForm<Record> form_;
  std::optional<SavedRecord<Record>> saved_;
};

} // namespace vitrelle
