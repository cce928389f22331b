// The first step of an editor: what a style shows. Saving makes the record, or changes it.
#pragma once

#include "core/lifecycle/StyleEditor.h"
#include "core/platform/FatalError.h"

#include <memory>

namespace vitrelle {

template <class Record>
class StyleSetup final : public StyleEditor {
 public:
  /// The family must outlive it.
  StyleSetup(const Platform& platform, const StyleFamily<Record>& family, const EditorTask& task)
      : StyleEditor(platform, family.words(), task),
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
  void save() override {
    platform().haptics.lightImpact();
    if (task().mode == EditorMode::create) {
      Record record = newRecord(family_.store, stored_.records);
      family_.copySetup(form_.record, record);
      stored_.records.push_back(std::move(record));
    } else {
      Record* record = stored_.at(task().configNumber);
      if (record == nullptr) fatalError("there is no widget style to edit at this index");
      family_.copySetup(form_.record, *record);
    }
    stored_.save();
  }

 private:
  const StyleFamily<Record>& family_;
  FamilyRecords<Record> stored_;
  EditorForm<Record> form_;
};

} // namespace vitrelle
