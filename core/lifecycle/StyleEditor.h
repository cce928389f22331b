// What the two steps of an editor share: a form over a draft, and the look of that draft above it.
#pragma once

#include "core/lifecycle/Backdrop.h"
#include "core/lifecycle/Saved.h"
#include "core/lifecycle/StyleFamily.h"
#include "core/lifecycle/StyleRecords.h"
#include "core/platform/Screen.h"

#include <optional>
#include <string>
#include <vector>

namespace vitrelle {

/// The screens pass these on as "create" and "edit".
enum class EditorMode { create, edit };

/// What an editor is opened with.
struct EditorTask {
  EditorMode mode = EditorMode::create;
  RecordIndex configNumber{noLinkedConfig}; ///< which record is edited
  std::string kind = {};                    ///< of a new style
  bool operator==(const EditorTask&) const = default;
};

class StyleEditor : public Screen {
 public:
  virtual ~StyleEditor() = default;

  /// Reads the slice and the records anew. A record that is not there leaves the form as it is.
  virtual void appear() = 0;
  /// Reads the slice alone, when the appearance has changed.
  void takeSlice();
  virtual Saved save() = 0;

  std::vector<ShownRow> rows() const { return form_.shownRows(draft_); }
  void setValue(std::size_t row, const FormValue& value);
  /// What the row's button does.
  void press(std::size_t row) { form_.press(*this, row); }
  /// Takes the picture in the clipboard in, if there is one, where this step takes any.
  void paste();
  /// The same of a picture that comes in another way.
  void takePicture(const Image& picture);
  bool takesPictures() const { return family_.takesPictures(step_); }
  /// The row whose value is picked on a sheet, while one is open.
  std::optional<ShownRow> activeSheet() const;
  /// Of a row that is picked on one; others open none.
  void openSheet(std::size_t row);
  void dismissSheet();
  /// The draft's face, in the middle of the frame.
  DisplayList face(const PointSize& frame) const;

  const StyleFamily& family() const { return family_; }
  const EditorTask& task() const { return task_; }
  EditorStep step() const { return step_; }
  const StyleDraft& draft() const { return draft_; }
  /// The slice behind the preview.
  const std::optional<SliceName>& img() const { return img_; }

 protected:
  /// The platform and the family must outlive it.
  StyleEditor(const Platform& platform, const StyleFamily& family, EditorStep step,
              EditorTask task);

  const Platform& platform() const { return platform_; }
  void readImg() { img_ = currentSlice(platform_, WidgetLocationImageNames::mediumTop); }
  void setDraft(StyleDraft draft) { draft_ = std::move(draft); }

 private:
  const Platform& platform_;
  const StyleFamily& family_;
  EditorStep step_;
  EditorTask task_;
  Form form_;
  StyleDraft draft_;
  std::optional<std::size_t> sheetRow_;
  std::optional<SliceName> img_;
  Subscription live_; ///< last, for it calls this screen
};

} // namespace vitrelle
