// The colour that widgets may paint in the place of their slice: one setting for all of them, on
// or off. The slices stay where they are meanwhile.
#pragma once

#include "core/platform/PlatformColour.h"
#include "core/store/StoredValue.h"

#include <functional>
#include <optional>
#include <string>

namespace vitrelle {

/// The setting as screens hold it: what other processes write shows at once, and each change is
/// stored at once and reloads the widgets.
class SolidBackground final {
 public:
  SolidBackground(const Platform& platform, std::function<void()> changed);

  bool isOn() const { return isOn_; }
  void setOn(bool on);

  /// White until there is one. What is no colour in the store changes nothing.
  const PlatformColour& colour() const { return colour_; }
  void setColour(const PlatformColour& colour);

  /// The colour that widgets find; without one they have nothing to paint, be it on or off.
  std::optional<PlatformColour> stored() const;

 private:
  const Platform& platform_;
  std::function<void()> changed_;
  StoredValue<bool> storedOn_;
  StoredValue<std::string> storedColour_;
  bool isOn_ = false;
  PlatformColour colour_{1, 1, 1, 1};
  Subscription on_;
  Subscription text_;
};

} // namespace vitrelle
