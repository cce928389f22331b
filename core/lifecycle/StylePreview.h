// The family's current style on the wallpaper of each wallpaper style.
#pragma once

#include "core/lifecycle/Backdrop.h"
#include "core/lifecycle/StyleFamily.h"
#include "core/lifecycle/StyleRecords.h"
#include "core/platform/Screen.h"
#include "core/store/StoredValue.h"

#include <optional>
#include <vector>

namespace vitrelle {

class StylePreview : public Screen {
 public:
  static constexpr double pageSpacing = 21; ///< points

  virtual ~StylePreview() = default;

  /// Reads the slice and the records anew. Of several records with the tag of the current style
  /// the last is shown; without one nothing is.
  void appear();
  /// One for each wallpaper style: its light screenshot, else its dark one, if there is either.
  std::vector<std::optional<SliceName>> pages() const;
  PointSize pageSize() const; ///< points
  /// Where on a page the widget lies: at the place of the top left small one.
  PointRect widgetBox() const;

  const FamilyDescription& words() const { return words_; }
  const std::optional<SliceName>& img() const { return img_; }
  /// The record in the middle of the frame: at its own size where the frame shows it whole, else
  /// smaller, down to the size at which the frame shows what the widget does.
  virtual DisplayList face(const PointSize& frame) const = 0;

 protected:
  StylePreview(const Platform& platform, const FamilyDescription& words,
               const Key<std::int64_t>& selected);

  const Platform& platform() const { return platform_; }
  /// The side of the small widget on the screen, points.
  double widgetSide() const { return widgetSide_; }
  virtual StyleRecords& stored() = 0;
  virtual void copy(std::size_t index) = 0;

 private:
  const Platform& platform_;
  const FamilyDescription& words_;
  StoredValue<std::int64_t> amountOfConfigs_;
  StoredValue<std::int64_t> selectedConfig_;
  std::optional<SliceName> img_;
  double widgetSide_;
  Subscription amountBinding_; ///< last, for it calls this screen
};

template <class Record>
class StylePreviewOf final : public StylePreview {
 public:
  /// The family must outlive it.
  StylePreviewOf(const Platform& platform, const StyleFamily<Record>& family)
      : StylePreview(platform, family.words(), family.store.selected),
        family_(family),
        storedDataArray_(platform, family.store) {}

  DisplayList face(const PointSize& frame) const override {
    const View whole = family_.face(platform(), record_, FaceUse::preview);
    return layOut(shrunkToFit(whole, frame.width / widgetSide()), frame, platform().drawing);
  }

 protected:
  StyleRecords& stored() override { return storedDataArray_; }
  void copy(std::size_t index) override { record_ = storedDataArray_.records[index]; }

 private:
  const StyleFamily<Record>& family_;
  FamilyRecords<Record> storedDataArray_;
  Record record_;
};

} // namespace vitrelle
