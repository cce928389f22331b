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

class StylePreview final : public Screen {
 public:
  static constexpr double pageSpacing = 21; ///< points

  /// The platform and the family must outlive it.
  StylePreview(const Platform& platform, const StyleFamily& family);

  /// Measures the screen, and reads the slice and the records anew. Of several records with the tag
  /// of the current style the last is shown; without one nothing is.
  void appear();
  /// One for each wallpaper style: its light screenshot, else its dark one, if there is either.
  std::vector<std::optional<SliceName>> pages() const;
  PointSize pageSize() const; ///< points
  /// Where on a page the face lies.
  PointRect widgetBox() const { return family_.previewBox(platform_, pageSize()); }

  const StyleFamily& family() const { return family_; }
  const std::optional<SliceName>& img() const { return img_; }
  /// The record in the middle of the frame: at its own size where the frame shows it whole, else
  /// smaller, down to the size at which the frame shows what the widget does.
  DisplayList face(const PointSize& frame) const;

 private:
  const Platform& platform_;
  const StyleFamily& family_;
  StyleRecords storedDataArray_;
  StoredValue<std::int64_t> amountOfConfigs_;
  StoredValue<std::int64_t> selectedConfig_;
  std::optional<SliceName> img_;
  std::optional<StyleRecord> shown_;
  double widgetSide_ = 0;              ///< of a small widget on the screen, points
  std::vector<Subscription> bindings_; ///< last, for they call this screen
};

} // namespace vitrelle
