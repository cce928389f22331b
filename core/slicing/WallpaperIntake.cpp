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

/// Commands that cut pictures hold the lock for less.
constexpr double patienceSeconds = 0.5;

std::int64_t required(const std::optional<std::int64_t>& amount) {
  if (!amount) fatalError("amountOfConfigs is missing");
  return *amount;
}

bool isStored(const Platform& platform, InterfaceStyle style, StyleNumber number) {
  return ImageLoader(platform)
      .loadSlice(rawValue(WidgetLocationImageNames::fullImage), style, number)
      .has_value();
}

/// Whether the newest of so many styles has both its screenshots.
bool newestIsComplete(const Platform& platform, std::int64_t amount) {
  if (amount == std::numeric_limits<std::int64_t>::min()) return false; // no number is less
  const StyleNumber newest{amount - 1};
  return isStored(platform, lightStyle, newest) && isStored(platform, darkStyle, newest);
}

/// No style is in the making any more.
void forget(const Platform& platform) {
  static_cast<void>(
      platform.defaults.remove(keys::styleInTheMaking.suite, keys::styleInTheMaking.name));
}

/// A folder that can't be entered would look like one without files.
bool canBeSearched(const Platform& platform) {
  const auto folder = platform.files.groupContainer();
  return folder &&
         (platform.files.fileExists(*folder + "/.") || !platform.files.fileExists(*folder));
}

} // namespace

void WallpaperIntake::appear() {
  auto lock = lock_ ? Result<HomeLock>(lock_) : platform_.files.lock(patienceSeconds);
  obstacle_ = lock ? std::nullopt : std::optional(lock.failure());
  if (lock) lock_ = *std::move(lock);
}

bool WallpaperIntake::isSet(InterfaceStyle style) const {
  return isStored(platform_, style, styleNumber());
}

bool WallpaperIntake::isReady() {
  if (obstacle_) appear();
  if (!obstacle_) return true;
  platform_.haptics.error();
  changed();
  return false;
}

void WallpaperIntake::tap(double x) {
  if (!isReady()) return;
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

void WallpaperIntake::present(ActiveSheet sheet) {
  activeSheet_ = sheet;
  changed();
}

void WallpaperIntake::dismissSheet() {
  activeSheet_.reset();
  pickerClosed();
  changed();
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
    : WallpaperIntake(platform),
      configAmount_(platform, keys::amountOfConfigs),
      inTheMaking_(platform, keys::styleInTheMaking) {}

void ModernNewLightDark::appear() {
  WallpaperIntake::appear();
  if (!obstacle()) judgeAbandonedStyle(platform());
  const auto amount = configAmount_.read();
  if (!amount) {
    setObstacle(amount.failure());
  } else {
    platform().debugConsole.print(std::to_string(amount->value_or(0)));
    maxConfigAmount_ = checkedAdd(required(*amount), 1);
  }
  changed();
}

void ModernNewLightDark::tap(double x) {
  if (!isReady()) return;
  WallpaperIntake::tap(x);
  const auto amount = configAmount_.read();
  if (!amount || required(*amount) >= maxConfigAmount_) return;
  inTheMaking_.set(styleNumber().value);
  configAmount_.set(checkedAdd(**amount, 1));
}

void ModernNewLightDark::disappear() {
  // Where the count can't be read, the next start finds the style in the making.
  if (const auto amount = configAmount_.read(); amount && !obstacle()) {
    if (!newestIsComplete(platform(), amount->value_or(0)))
      configAmount_.set(checkedAdd(maxConfigAmount_, -1));
    if (inTheMaking_.get()) forget(platform());
  }
  WallpaperIntake::disappear();
}

StyleNumber ModernNewLightDark::styleNumber() const {
  return {checkedAdd(maxConfigAmount_, -1)};
}

void takeBackAbandonedStyle(const Platform& platform) {
  // A home without such a style may be one that is not made yet, and is not made by looking.
  if (!StoredValue<std::int64_t>(platform, keys::styleInTheMaking).get()) return;
  if (const auto lock = platform.files.lock(0)) judgeAbandonedStyle(platform);
}

void judgeAbandonedStyle(const Platform& platform) {
  const StoredValue<std::int64_t> inTheMaking(platform, keys::styleInTheMaking);
  const auto number = inTheMaking.get();
  const StoredValue<std::int64_t> amount(platform, keys::amountOfConfigs);
  const auto stored = amount.get();
  if (!number || !stored || !canBeSearched(platform)) return;
  // Where another style was made since, there is no number to give back.
  const bool newest = *number < *stored && *number + 1 == *stored;
  if (newest && !newestIsComplete(platform, *stored)) {
    amount.set(*number);
    if (amount.get() != number) return;
  }
  forget(platform);
}

} // namespace vitrelle
