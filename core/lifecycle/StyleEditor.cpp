#include "core/lifecycle/StyleEditor.h"

#include "core/lifecycle/PastedPicture.h"

#include <utility>

namespace vitrelle {

StyleEditor::StyleEditor(const Platform& platform, const StyleFamily& family, EditorStep step,
                         EditorTask task)
    : platform_(platform),
      family_(family),
      step_(step),
      task_(std::move(task)),
      form_(family.rows(step)),
      draft_(family.newDraft(task_.kind)),
      live_(family.live(platform, [this] { changed(); })) {}

void StyleEditor::takeSlice() {
  readImg();
  changed();
}

void StyleEditor::setValue(std::size_t row, const FormValue& value) {
  form_.setValue(draft_, row, value);
  changed();
}

void StyleEditor::paste() {
  if (!takesPictures()) return;
  if (const auto picture = pastedPicture(platform_)) takePicture(*picture);
}

void StyleEditor::takePicture(const Image& picture) {
  if (!takesPictures()) return;
  draft_.picture = family_.takenIn(platform_, picture);
  changed();
}

std::optional<ShownRow> StyleEditor::activeSheet() const {
  if (!sheetRow_) return std::nullopt;
  for (ShownRow& shown : rows()) {
    if (shown.index == *sheetRow_) return std::move(shown);
  }
  return std::nullopt;
}

void StyleEditor::openSheet(std::size_t row) {
  sheetRow_ = row;
  const auto opened = activeSheet();
  if (!opened || !isPickedOnSheet(opened->row.control)) sheetRow_.reset();
  changed();
}

void StyleEditor::dismissSheet() {
  sheetRow_.reset();
  changed();
}

DisplayList StyleEditor::face(const PointSize& frame) const {
  const FaceUse use = step_ == EditorStep::setup ? FaceUse::setup : FaceUse::second;
  return layOut(family_.draftFace(platform_, draft_, use), frame, platform_.drawing);
}

} // namespace vitrelle
