#include "core/lifecycle/StyleSecond.h"

#include "core/platform/FatalError.h"
#include "core/slicing/ImageLoader.h"
#include "core/store/RecordCoding.h"

#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

namespace vitrelle {

namespace {

constexpr RecordIndex nowhere{-1};

/// Whether the store gives them back as the same: a colour may lose what its digits can't tell.
bool areStoredAlike(const StyleRecord& one, const StyleRecord& other) {
  return std::visit(
      []<class Record, class Other>(const Record& first, const Other& second) {
        if constexpr (std::is_same_v<Record, Other>) {
          const Result<Data> firstStored = encodeRecords(std::vector{first});
          const Result<Data> secondStored = encodeRecords(std::vector{second});
          return firstStored && secondStored && *firstStored == *secondStored;
        }
        return false;
      },
      one, other);
}

} // namespace

StyleSecond::StyleSecond(const Platform& platform, const StyleFamily& family, EditorTask task,
                         std::optional<SavedRecord> saved)
    : StyleEditor(platform, family, EditorStep::second, std::move(task)),
      saved_(std::move(saved)),
      stored_(platform, family.store()),
      selected_(platform, family.store().selected),
      index_(nowhere) {}

void StyleSecond::appear() {
  readImg();
  stored_.load();
  index_ = findRecord();
  const bool isNew = task().mode == EditorMode::create;
  const StyleRecord* record = stored_.at(index_);
  if (record != nullptr || saved_) {
    StyleDraft draft =
        family().secondDraft(platform(), record != nullptr ? *record : saved_->record, isNew);
    if (saved_) draft.picture = saved_->picture;
    if (record != nullptr && !isNew && !mustKeep())
      draft.picture = family().kept(platform(), index_);
    setDraft(std::move(draft));
  }
  changed();
}

Saved StyleSecond::save() {
  bool isSaved = false;
  if (StyleRecord* record = stored_.at(index_)) {
    if (mustKeep() && !family().keep(platform(), draft(), index_)) return Saved::refused;
    family().copy(EditorStep::second, draft(), *record);
    isSaved = stored_.save();
    if (isStored()) selected_.set(index_.value);
  }
  platform().haptics.success();
  return isSaved ? Saved::stored : Saved::notStored;
}

/// The index of the record that is worked on. What the store did not take from the step before is
/// put into this screen's copy once more: no other record may stand in for it.
RecordIndex StyleSecond::findRecord() {
  const RecordIndex behindAll{static_cast<std::int64_t>(stored_.count())};
  const bool editing = task().mode == EditorMode::edit;
  if (!saved_) return editing ? task().configNumber : RecordIndex{behindAll.value - 1};
  StyleRecord* there = stored_.at(saved_->index);
  const bool isSaved = saved_->isKept && there != nullptr && areStoredAlike(*there, saved_->record);
  if (isSaved) return saved_->index;
  const StyleDraft before{.record = saved_->record, .kind = family().kindOf(saved_->record)};
  if (editing) {
    if (there != nullptr) family().copy(EditorStep::setup, before, *there);
    return saved_->index;
  }
  // Fewer than the step before saw: writing this copy would lose those that can't be read now.
  if (behindAll < saved_->index || stored_.count() >= maximumWidgetStyles) return nowhere;
  family().copy(EditorStep::setup, before, stored_.append());
  return behindAll;
}

/// Whether what belongs to the record is not stored yet, or was stored for another index.
bool StyleSecond::mustKeep() const {
  return saved_ && (!saved_->isKept || saved_->index != index_);
}

bool StyleSecond::isStored() const {
  StyleRecords now(platform(), family().store());
  now.load();
  return now.at(index_) != nullptr;
}

void StyleSecond::startSuggestions() {
  if (suggesting()) task_ = platform().mainQueue.asyncAfter(0, [this] { suggest(); });
}

std::optional<SuggestingEditor> StyleSecond::suggesting() const {
  return suggestingEditor(family().words().name);
}

void StyleSecond::suggest() {
  const auto screenshot = ImageLoader(platform())
                              .loadSlice(rawValue(WidgetLocationImageNames::fullImage),
                                         currentAppearance(platform()), styleInUse(platform()));
  if (!screenshot) fatalError("the style in use has no screenshot to suggest colours from");
  suggestions_.workOut(*screenshot, suggesting()->coloursAsked);
  changed();
}

} // namespace vitrelle
