// The screen on which a colour for the ground of all widgets is picked and switched on.
#pragma once

#include "core/lifecycle/Backdrop.h"
#include "core/platform/Screen.h"
#include "core/slicing/SolidBackground.h"

#include <optional>

namespace vitrelle {

class SolidBackgroundView final : public Screen {
 public:
  explicit SolidBackgroundView(const Platform& platform)
      : platform_(platform), solid_(platform, [this] { changed(); }) {
    appear();
  }

  /// Also when the appearance changes, which the preview's slice depends on.
  void appear();

  bool fillColour() const { return solid_.isOn(); }
  void setFillColour(bool on) { solid_.setOn(on); }
  const PlatformColour& solidBackgroundColour() const { return solid_.colour(); }
  void setSolidBackgroundColour(const PlatformColour& colour) { solid_.setColour(colour); }

  /// What the colour lies over: a slice of the first style, whichever is in use; nothing stands for
  /// plain grey.
  const std::optional<SliceName>& img() const { return img_; }

 private:
  const Platform& platform_;
  SolidBackground solid_;
  std::optional<SliceName> img_;
};

} // namespace vitrelle
