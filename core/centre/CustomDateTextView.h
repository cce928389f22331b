// The screen on which the plain date widget is set up: one font, size and colour for all of them.
// What is changed here is stored at once, and what other processes store shows at once.
#pragma once

#include "core/lifecycle/Backdrop.h"
#include "core/lifecycle/Form.h"
#include "core/platform/Screen.h"
#include "core/slicing/SolidBackground.h"

#include <cstdint>
#include <optional>
#include <string>

namespace vitrelle {

class CustomDateTextView final : public Screen {
 public:
  /// What the stepper gives, in points. The store may hold any number.
  static constexpr NumberRange sizes{10, 80};

  explicit CustomDateTextView(const Platform& platform);

  /// Also when the appearance changes, which the preview's slice depends on.
  void appear();

  const PlatformColour& dateColour() const { return colour_; }
  void setDateColour(const PlatformColour& colour);
  /// As it is stored; 18 where none is.
  std::int64_t dateFontSize() const { return size_; }
  /// Brings the size into the range.
  void setDateFontSize(std::int64_t size);
  /// As the font picker stores it; "Helvetica" where none is.
  const std::string& dateFontPicked() const { return font_; }

  bool showingFontPicker() const { return showingFontPicker_; }
  void pickFont();
  void dismissFontPicker();

  /// What the date stands on: the slice of the style in use, or the solid colour over it.
  const std::optional<SliceName>& img() const { return img_; }
  const SolidBackground& background() const { return background_; }
  /// Today's date with its shadow.
  DisplayList face(const PointSize& frame) const;

 private:
  const Platform& platform_;
  StoredValue<std::string> storedColour_;
  StoredValue<std::int64_t> storedSize_;
  StoredValue<std::string> storedFont_;
  PlatformColour colour_{1, 1, 1, 1};
  std::int64_t size_ = 0;
  std::string font_;
  bool showingFontPicker_ = false;
  std::optional<SliceName> img_;
  SolidBackground background_;
  Subscription colours_;
  Subscription sizes_;
  Subscription fonts_;
  Subscription styles_;
};

} // namespace vitrelle
