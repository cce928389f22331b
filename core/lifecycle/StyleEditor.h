// What the two steps of an editor share: a form over one record, and the look of that record above
// it.
#pragma once

#include "core/lifecycle/Backdrop.h"
#include "core/lifecycle/StyleFamily.h"
#include "core/lifecycle/StyleRecords.h"
#include "core/platform/Screen.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace vitrelle {

/// The screens pass these on as "create" and "edit".
enum class EditorMode { create, edit };

/// What an editor is opened with.
struct EditorTask {
  EditorMode mode = EditorMode::create;
  std::int64_t configNumber = noLinkedConfig; ///< index of the record that is edited
  bool operator==(const EditorTask&) const = default;
};

class StyleEditor : public Screen {
 public:
  virtual ~StyleEditor() = default;

  /// Reads the slice and the records anew. A record that is not there leaves the form as it is.
  virtual void appear() = 0;
  virtual std::vector<ShownRow> rows() const = 0;
  /// A value of another kind than the row's changes nothing.
  virtual void setValue(std::size_t row, const FormValue& value) = 0;
  /// The record as it is edited, in the middle of the frame.
  virtual DisplayList face(const PointSize& frame) const = 0;
  /// Writes the records. Whether they were stored; the flow goes on either way.
  virtual bool save() = 0;

  const FamilyDescription& words() const { return words_; }
  const EditorTask& task() const { return task_; }
  /// The slice behind the preview.
  const std::optional<SliceName>& img() const { return img_; }

 protected:
  StyleEditor(const Platform& platform, const FamilyDescription& words, const EditorTask& task)
      : platform_(platform), words_(words), task_(task) {}

  const Platform& platform() const { return platform_; }
  void readImg() { img_ = currentSlice(platform_, WidgetLocationImageNames::mediumTop); }

 private:
  const Platform& platform_;
  const FamilyDescription& words_;
  EditorTask task_;
  std::optional<SliceName> img_;
};

/// The form's part of an editor, over its family's record.
template <class Record>
class EditorForm {
 public:
  EditorForm(const StyleFamily<Record>& family, const std::vector<FormRow<Record>>& rows)
      : family_(family), rows_(rows) {}

  std::vector<ShownRow> shownRows() const {
    std::vector<ShownRow> shown;
    for (std::size_t i = 0; i < rows_.size(); ++i) {
      const FormRow<Record>& row = rows_[i];
      if (row.shown && !row.shown(record)) continue;
      shown.push_back({i, row.title, row.control, row.get(record), row.range});
    }
    return shown;
  }
  /// A stepper's number stays in its range.
  void setValue(std::size_t row, const FormValue& value) {
    if (row >= rows_.size()) return;
    const FormRow<Record>& changed = rows_[row];
    const auto* number = std::get_if<std::int64_t>(&value);
    if (changed.control == FormControl::stepper && number != nullptr) {
      changed.set(record, std::clamp(*number, changed.range.lowest, changed.range.highest));
    } else {
      changed.set(record, value);
    }
  }
  DisplayList face(const Platform& platform, FaceUse use, const PointSize& frame) const {
    return layOut(family_.face(platform, record, use), frame, platform.drawing);
  }

  Record record; ///< the form's own

 private:
  const StyleFamily<Record>& family_;
  const std::vector<FormRow<Record>>& rows_;
};

} // namespace vitrelle
