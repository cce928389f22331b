// The two screens on which a wallpaper style gets its light and its dark screenshot: one makes a
// new style, the other changes an existing one.
#pragma once

#include "core/platform/Platform.h"
#include "core/platform/Screen.h"
#include "core/slicing/ActiveSheet.h"
#include "core/slicing/ImageCropper.h"
#include "core/store/StoredValue.h"

#include <array>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace vitrelle {

/// One half of the screen, as shown.
struct WallpaperCell {
  InterfaceStyle style = lightStyle;
  std::string_view title;  ///< "Light Mode"
  std::string_view symbol; ///< in the place of a picture
};

/// What both screens share: the two cells, the picker, and the storing of what was picked.
class WallpaperIntake : public Screen {
 public:
  static constexpr std::string_view title = "Customise Vitrelle Style";
  static constexpr std::string_view back = "Back";
  static constexpr std::string_view hint = "Tap to Change";
  static constexpr std::string_view noImage = "No Image Set";

  virtual ~WallpaperIntake() = default;

  /// While the screen is open, other programs are kept from changing styles.
  virtual void appear();
  virtual void disappear() { lock_.reset(); }

  /// The two halves: the left one, the right one. Their pictures are the stored screenshots.
  static constexpr std::array<WallpaperCell, 2> cells{
      {{lightStyle, "Light Mode", "sun.max.fill"}, {darkStyle, "Dark Mode", "moon.fill"}}};
  /// The style whose screenshots these are.
  virtual StyleNumber styleNumber() const = 0;
  /// Whether that style has a screenshot for the appearance.
  bool isSet(InterfaceStyle style) const;

  /// A press that ended so many points from the screen's left edge: the left half takes a light
  /// screenshot, the right half a dark one. Opens the picker.
  virtual void tap(double x);
  /// The same for one appearance, as by keys or a dropped file.
  void choose(InterfaceStyle style);

  /// What the picker gave; nothing when it was cancelled. Closes the picker, and a screenshot is
  /// cut and stored before this returns. What became of the files, for hosts that tell of failures.
  std::vector<StoredSlice> pick(const std::optional<Image>& original);

  /// Why no screenshot can be taken in now, if so: another program is changing styles, nothing can
  /// be written, or the store can't be read. A press only tries whether that is over.
  const std::optional<Failure>& obstacle() const { return obstacle_; }

  /// Opens one of the screen's other sheets, which are help.
  void present(ActiveSheet sheet);
  /// Such a sheet is closed; what a closed picker leaves behind is left behind as well.
  void dismissSheet();
  const std::optional<ActiveSheet>& activeSheet() const { return activeSheet_; }
  const std::optional<InterfaceStyle>& interfaceStyle() const { return interfaceStyle_; }

 protected:
  explicit WallpaperIntake(const Platform& platform) : platform_(platform) {}
  const Platform& platform() const { return platform_; }
  void setObstacle(std::optional<Failure> obstacle) { obstacle_ = std::move(obstacle); }
  /// Whether a press can be followed.
  bool isReady();

 private:
  std::vector<StoredSlice> pickerClosed();

  const Platform& platform_;
  HomeLock lock_;
  std::optional<Failure> obstacle_;
  std::optional<Image> imageBuffer_;             ///< none stands for an empty image
  std::optional<InterfaceStyle> interfaceStyle_; ///< of the cell that was tapped
  std::optional<ActiveSheet> activeSheet_;
};

/// Makes a new style. It counts from the first tap, so that a picked screenshot has its number, and
/// is taken back if the screen is left before both screenshots are there; the files stay. While it
/// counts, the store tells its number, for `takeBackAbandonedStyle`.
class ModernNewLightDark final : public WallpaperIntake {
 public:
  explicit ModernNewLightDark(const Platform& platform);

  /// A missing count of styles is a fatal error, here and at a tap.
  void appear() override;
  void tap(double x) override;
  void disappear() override;

  StyleNumber styleNumber() const override;
  /// The count of styles with the new one.
  std::int64_t maxConfigAmount() const { return maxConfigAmount_; }

 private:
  StoredValue<std::int64_t> configAmount_;
  StoredValue<std::int64_t> inTheMaking_;
  std::int64_t maxConfigAmount_ = 0;
};

class ModernChangeLightDark final : public WallpaperIntake {
 public:
  ModernChangeLightDark(const Platform& platform, StyleNumber numberOfConfig)
      : WallpaperIntake(platform), numberOfConfig_(numberOfConfig) {}

  StyleNumber styleNumber() const override { return numberOfConfig_; }

 private:
  StyleNumber numberOfConfig_;
};

/// For who holds the lock of the home, before a style is made: where a run ended in the midst of a
/// new style, the style is judged as it would have been on leaving. Nothing happens where store or
/// folder can't be read.
void judgeAbandonedStyle(const Platform& platform);

/// The same at a start, before styles are listed. Nothing happens while another program holds the
/// lock, for it may be at work on that style.
void takeBackAbandonedStyle(const Platform& platform);

} // namespace vitrelle
