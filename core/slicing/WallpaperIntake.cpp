#include "core/slicing/WallpaperIntake.h"

#include "core/platform/FatalError.h"
#include "core/slicing/ImageLoader.h"
#include "core/slicing/ImagePicker.h"
#include "core/slicing/WallpaperInterface.h"
#include "core/store/Keys.h"

#include <limits>
#include <string>

namespace vitrelle {

namespace {

std::int64_t required(const StoredValue<std::int64_t>& amount) {
  const auto stored = amount.get();
  if (!stored) fatalError("amountOfConfigs is missing");
  return *stored;
}

/// Whether the newest of so many styles has both its screenshots.
bool newestIsComplete(const Platform& platform, std::int64_t amount) {
  if (amount == std::numeric_limits<std::int64_t>::min()) return false; // no number is less
  const ImageLoader loader(platform);
  const auto exists = [&](InterfaceStyle style) {
    return loader.loadSlice(rawValue(WidgetLocationImageNames::fullImage), style, amount - 1)
        .has_value();
  };
  return exists(lightStyle) && exists(darkStyle);
}

} // namespace

std::vector<WallpaperCell> WallpaperIntake::cellWords() {
  return {{lightStyle, "Light Mode", "sun.max.fill", std::nullopt},
          {darkStyle, "Dark Mode", "moon.fill", std::nullopt}};
}

std::vector<WallpaperCell> WallpaperIntake::cells() const {
  std::vector<WallpaperCell> cells = cellWords();
  for (WallpaperCell& cell : cells) {
    cell.screenshot = ImageLoader(platform_).loadSlice(
        rawValue(WidgetLocationImageNames::fullImage), cell.style, styleNumber());
  }
  return cells;
}

void WallpaperIntake::tap(double x) {
  const double width = platform_.device.screenBounds().width;
  interfaceStyle_ = x < width * 0.5 ? lightStyle : darkStyle;
  activeSheet_ = ActiveSheet::photoPicker;
  changed();
}

void WallpaperIntake::choose(InterfaceStyle style) {
  tap(style == darkStyle ? platform_.device.screenBounds().width : 0);
}

std::vector<StoredSlice> WallpaperIntake::pick(const std::optional<Image>& original) {
  std::vector<StoredSlice> stored;
  ImagePicker(imageBuffer_, [&] {
    activeSheet_.reset();
    stored = pickerClosed();
  }).didFinishPicking(original);
  changed();
  return stored;
}

std::vector<StoredSlice> WallpaperIntake::pickerClosed() {
  std::vector<StoredSlice> stored;
  if (interfaceStyle_) {
    stored = WallpaperInterface::shared(platform_)->setImage(imageBuffer_.value_or(Image(Bitmap{})),
                                                             *interfaceStyle_, styleNumber());
  }
  interfaceStyle_.reset();
  imageBuffer_.reset();
  return stored;
}

ModernNewLightDark::ModernNewLightDark(const Platform& platform)
    : WallpaperIntake(platform), configAmount_(platform, keys::amountOfConfigs) {}

void ModernNewLightDark::appear() {
  platform().debugConsole.print(std::to_string(configAmount_.getOrDefault()));
  maxConfigAmount_ = checkedAdd(required(configAmount_), 1);
  changed();
}

void ModernNewLightDark::tap(double x) {
  WallpaperIntake::tap(x);
  const std::int64_t amount = required(configAmount_);
  if (amount < maxConfigAmount_) configAmount_.set(checkedAdd(amount, 1));
}

void ModernNewLightDark::disappear() {
  if (!newestIsComplete(platform(), configAmount_.getOrDefault()))
    configAmount_.set(checkedAdd(maxConfigAmount_, -1));
}

std::int64_t ModernNewLightDark::styleNumber() const {
  return checkedAdd(maxConfigAmount_, -1);
}

} // namespace vitrelle
