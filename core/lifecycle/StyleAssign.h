// Links a widget style to a wallpaper style, which no two widget styles of a family may share.
#pragma once

#include "core/lifecycle/Backdrop.h"
#include "core/lifecycle/StyleEntry.h"
#include "core/lifecycle/StyleFamily.h"
#include "core/lifecycle/StyleRecords.h"
#include "core/platform/Screen.h"
#include "core/store/StoredValue.h"

#include <optional>
#include <string>
#include <vector>

namespace vitrelle {

/// A line of the picker.
struct AssignOption {
  std::string label;
  std::int64_t value = noLinkedConfig; ///< number of a wallpaper style
  bool operator==(const AssignOption&) const = default;
};

class StyleAssign : public Screen {
 public:
  virtual ~StyleAssign() = default;

  /// Reads the slice and the records anew.
  void appear();
  /// "None", then the wallpaper styles, counted from 1.
  std::vector<AssignOption> options() const;
  /// The picker begins at the first wallpaper style, whatever the present link.
  std::int64_t vitrelleConfig() const { return vitrelleConfig_; }
  void pick(std::int64_t vitrelleConfig);
  /// Writes the link, and whether the screen is done. A style that is taken, also by this very
  /// record, is refused with the alert.
  bool save();
  /// Whether the last save was stored.
  bool isSaved() const { return isSaved_; }
  void dismissAlert();

  const FamilyDescription& words() const { return words_; }
  const std::vector<std::int64_t>& invalidConfigs() const { return invalidConfigs_; }
  std::optional<Alert> alert() const;
  const std::optional<SliceName>& img() const { return img_; }
  /// The record as far as the screen copies it, in the middle of the frame.
  virtual DisplayList face(const PointSize& frame) const = 0;

 protected:
  StyleAssign(const Platform& platform, const FamilyDescription& words, std::int64_t configNumber)
      : platform_(platform),
        words_(words),
        configNumber_(configNumber),
        amountOfConfigs_(platform, keys::amountOfConfigs),
        amountBinding_(amountOfConfigs_.onChange([this](const auto&) { changed(); })) {}

  const Platform& platform() const { return platform_; }
  virtual StyleRecords& stored() = 0;
  /// Takes the record at the index for the preview.
  virtual void copy(std::size_t index) = 0;

 private:
  void findInvalidConfigs();

  const Platform& platform_;
  const FamilyDescription& words_;
  std::int64_t configNumber_;
  StoredValue<std::int64_t> amountOfConfigs_;
  std::optional<SliceName> img_;
  std::int64_t vitrelleConfig_ = 0;
  std::vector<std::int64_t> invalidConfigs_;
  bool showingAlert_ = false;
  bool isSaved_ = false;
  Subscription amountBinding_; ///< last, for it calls this screen
};

template <class Record>
class StyleAssignOf final : public StyleAssign {
 public:
  /// The family must outlive it.
  StyleAssignOf(const Platform& platform, const StyleFamily<Record>& family,
                std::int64_t configNumber)
      : StyleAssign(platform, family.words(), configNumber),
        family_(family),
        storedDataArray_(platform, family.store) {}

  DisplayList face(const PointSize& frame) const override {
    return layOut(family_.face(platform(), record_, FaceUse::assign), frame, platform().drawing);
  }

 protected:
  StyleRecords& stored() override { return storedDataArray_; }
  /// What the setup edits; colours stay white.
  void copy(std::size_t index) override {
    family_.copySetup(storedDataArray_.records[index], record_);
  }

 private:
  const StyleFamily<Record>& family_;
  FamilyRecords<Record> storedDataArray_;
  Record record_;
};

} // namespace vitrelle
