#include "core/lifecycle/StyleSetup.h"

#include "core/platform/FatalError.h"

#include <utility>

namespace vitrelle {

StyleSetup::StyleSetup(const Platform& platform, const StyleFamily& family, EditorTask task)
    : StyleEditor(platform, family, EditorStep::setup, std::move(task)),
      stored_(platform, family.store()) {}

void StyleSetup::appear() {
  readImg();
  stored_.load();
  if (task().mode == EditorMode::edit) {
    if (const StyleRecord* record = stored_.at(task().configNumber)) {
      StyleDraft draft = family().draftOf(*record);
      draft.picture = family().kept(platform(), task().configNumber);
      setDraft(std::move(draft));
    }
  }
  changed();
}

Saved StyleSetup::save() {
  platform().haptics.lightImpact();
  const bool isNew = task().mode == EditorMode::create;
  const RecordIndex index =
      isNew ? RecordIndex{static_cast<std::int64_t>(stored_.count())} : task().configNumber;
  if (!isNew && stored_.at(index) == nullptr) {
    if (stored_.loaded()) fatalError("there is no widget style to edit at this index");
    return stored_.save() ? Saved::stored : Saved::notStored; // what can't be read is not written
  }
  // Where the records can't be read, the index is another one's.
  const bool isKept = stored_.loaded();
  if (isKept && !family().keep(platform(), draft(), index)) return Saved::refused;
  StyleRecord& record = isNew ? stored_.append() : *stored_.at(index);
  family().copy(EditorStep::setup, draft(), record);
  saved_ = {index, record, draft().picture, isKept};
  return stored_.save() ? Saved::stored : Saved::notStored;
}

std::unique_ptr<StyleSecond> StyleSetup::next() const {
  return std::make_unique<StyleSecond>(platform(), family(), task(), saved_);
}

} // namespace vitrelle
