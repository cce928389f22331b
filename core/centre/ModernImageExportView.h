// The screen that takes slices out of the system: a style, an appearance and a size of widget are
// chosen, and the slot that is pressed goes to the share sheet. It writes nothing.
#pragma once

#include "core/centre/ActivityView.h"
#include "core/lifecycle/Backdrop.h"
#include "core/platform/Screen.h"
#include "core/store/StoredValue.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace vitrelle {

/// What the screen's sheet holds. Without a picture it has nothing to share, and says so.
struct IEActiveSheet {
  std::optional<ActivityView> image;
  bool operator==(const IEActiveSheet&) const = default;
};

class ModernImageExportView final : public Screen {
 public:
  struct Chooser {
    std::string_view heading;
    std::string_view label;
  };
  static constexpr std::string_view title = "Export Vitrelles";
  static constexpr std::string_view symbol = "square.and.arrow.up";
  static constexpr Chooser styleChooser{"Select Vitrelle Style", "Select a Vitrelle Style"};
  static constexpr Chooser appearanceChooser{"Select Mode", "Select an appearance"};
  static constexpr Chooser sizeChooser{"Pick Widget Size", "Widget Size"};
  static constexpr std::string_view appearances[] = {"Light", "Dark"};
  static constexpr std::string_view sizes[] = {"Small", "Medium", "Large"};

  /// The platform must outlive it.
  explicit ModernImageExportView(const Platform& platform);

  /// How many styles can be chosen from, by their numbers from 0.
  std::int64_t configAmounts() const { return configAmounts_; }
  std::int64_t selection() const { return selection_; }
  void select(std::int64_t style);
  /// 0 is light, any other value dark.
  std::int64_t lightDark() const { return lightDark_; }
  void setLightDark(std::int64_t lightDark);
  /// 0 small, 1 medium, 2 large.
  std::int64_t widgetSize() const { return widgetSize_; }
  void setWidgetSize(std::int64_t size);

  /// The slots of the chosen size. A slot without a slice is a fatal error; where the chosen style
  /// is none of those that are there, nothing is read.
  std::vector<std::vector<SliceName>> rows() const;
  /// Of each preview, in points, whatever the phone's own proportions.
  PointSize previewSize() const;
  /// Between the rows, in points.
  double rowSpacing() const;

  /// A press on a slot of the chosen style. One without a slice is a fatal error.
  void tap(std::string_view stem);
  const std::optional<IEActiveSheet>& activeSheet() const { return activeSheet_; }
  void dismissSheet();

 private:
  WidgetFamily family() const { return static_cast<WidgetFamily>(widgetSize_); }
  InterfaceStyle appearance() const { return lightDark_ != 0 ? darkStyle : lightStyle; }
  Image slice(std::string_view stem) const;

  const Platform& platform_;
  std::int64_t configAmounts_ = 0;
  std::int64_t selection_ = 0;
  std::int64_t lightDark_ = 0;
  std::int64_t widgetSize_ = 0;
  std::optional<IEActiveSheet> activeSheet_;
  Subscription amounts_; ///< last, for it calls this screen
};

} // namespace vitrelle
