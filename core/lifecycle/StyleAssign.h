// Links a widget style to a wallpaper style, which no two widget styles of a family may share.
#pragma once

#include "core/lifecycle/Alert.h"
#include "core/lifecycle/Backdrop.h"
#include "core/lifecycle/Saved.h"
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
  std::optional<StyleNumber> style = {}; ///< none for the line that takes the link away
  bool operator==(const AssignOption&) const = default;
};

class StyleAssign final : public Screen {
 public:
  /// The platform and the family must outlive it.
  StyleAssign(const Platform& platform, const StyleFamily& family, RecordIndex configNumber);

  /// Reads the slice and the records anew.
  void appear();
  /// "None", then the wallpaper styles, counted from 1.
  std::vector<AssignOption> options() const;
  /// The picker begins at the first wallpaper style, whatever the present link.
  std::optional<StyleNumber> vitrelleConfig() const { return vitrelleConfig_; }
  void pick(std::optional<StyleNumber> vitrelleConfig);
  /// Writes the link. A style that is taken, also by this very record, is refused with the alert.
  Saved save();
  void dismissAlert();

  const StyleFamily& family() const { return family_; }
  const std::vector<StyleNumber>& invalidConfigs() const { return invalidConfigs_; }
  std::optional<Alert> alert() const;
  const std::optional<SliceName>& img() const { return img_; }
  /// The record as far as the screen copies it, in the middle of the frame.
  DisplayList face(const PointSize& frame) const;

 private:
  void findInvalidConfigs();

  const Platform& platform_;
  const StyleFamily& family_;
  RecordIndex configNumber_;
  StyleRecords storedDataArray_;
  StoredValue<std::int64_t> amountOfConfigs_;
  StyleDraft shown_; ///< of the record what the screen copies
  std::optional<SliceName> img_;
  std::optional<StyleNumber> vitrelleConfig_ = StyleNumber{};
  std::vector<StyleNumber> invalidConfigs_;
  bool showingAlert_ = false;
  std::vector<Subscription> bindings_; ///< last, for they call this screen
};

} // namespace vitrelle
