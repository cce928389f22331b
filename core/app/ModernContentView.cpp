#include "core/app/ModernContentView.h"

#include "core/platform/FatalError.h"
#include "core/slicing/DeviceNames.h"
#include "core/slicing/ImageCropper.h"
#include "core/slicing/ImageLoader.h"
#include "core/slicing/Measurements.h"
#include "core/slicing/WallpaperIntake.h"
#include "core/store/Keys.h"
#include "core/store/Listing.h"

#include <string>

namespace vitrelle {

namespace {

/// The slices of a move are written beside the launch, and are all there by then.
constexpr double secondsUntilMoved = 2.0;
/// A window that starts does not wait longer for a program that is changing styles.
constexpr double patienceSeconds = 0.5;

} // namespace

bool isOfFirstGeneration(std::string_view version) {
  return version.find('2') == std::string_view::npos; // that generation ended with 1.9
}

ModernContentView::ModernContentView(const Platform& platform)
    : platform_(platform),
      lastUsedAppVersion_(platform, keys::lastUsedAppVersion),
      configAmounts_(platform, keys::amountOfConfigs),
      selectedConfig_(platform, keys::selectedConfig) {
  const auto follow = [this](const auto&) { followStores(); };
  bindings_.push_back(configAmounts_.onChange(follow));
  bindings_.push_back(selectedConfig_.onChange(follow));
  bindings_.push_back(lastUsedAppVersion_.onChange(follow));
}

/// A store that could not be read delivers its values anew when it can.
void ModernContentView::followStores() {
  if (isLaunchDelayed_) return appear();
  if (isListOld_) reloadConfigs();
  changed();
}

/// Whether the launch can be decided now. One that writes needs both stores read, since one that
/// can't be read would pass for the first run, and no other program at work on the styles.
bool ModernContentView::canLaunch(const Result<HomeLock>& lock) const {
  const auto amount = configAmounts_.read();
  const auto version = lastUsedAppVersion_.read();
  if (!amount || !version) return false;
  const bool writes = !*amount || !*version || isOfFirstGeneration(**version);
  return !writes || lock;
}

void ModernContentView::appear() {
  takeBackAbandonedStyle(platform_);
  const Result<HomeLock> lock = platform_.files.lock(patienceSeconds);
  isLaunchDelayed_ = launchWaits_ = !canLaunch(lock);
  if (isLaunchDelayed_) {
    platform_.widgetCenter.reloadAllTimelines();
    changed();
    return;
  }
  if (!configAmounts_.get()) resetCounts();
  platform_.debugConsole.print(std::to_string(amountOfConfigs()));
  platform_.debugConsole.print(deviceName(platform_));
  if (Measurements::current(platform_).widgetSize == 0) {
    platform_.haptics.error();
    activeAlert_ = ActiveAlert::incompatible;
  } else {
    decideKindOfRun();
  }
  platform_.widgetCenter.reloadAllTimelines();
  changed();
}

void ModernContentView::appearBeneath() {
  takeBackAbandonedStyle(platform_);
  const auto version = lastUsedAppVersion_.get();
  const bool isMeasured = Measurements::current(platform_).widgetSize != 0;
  launchWaits_ =
      !configAmounts_.get() || (isMeasured && (!version || isOfFirstGeneration(*version)));
  platform_.widgetCenter.reloadAllTimelines();
  changed();
}

void ModernContentView::phoneChanged() {
  const bool isMeasured = Measurements::current(platform_).widgetSize != 0;
  if (activeAlert_ == ActiveAlert::incompatible && isMeasured) {
    activeAlert_.reset();
    const auto version = lastUsedAppVersion_.read();
    if (version && !*version) lastUsedAppVersion_.set(currentVersion());
  }
  changed();
}

void ModernContentView::decideKindOfRun() {
  const auto stored = lastUsedAppVersion_.get();
  if (!stored) {
    showOnboarding_ = true;
    lastUsedAppVersion_.set(currentVersion());
    resetCounts();
    return;
  }
  if (*stored == currentVersion()) return;
  platform_.debugConsole.print("was previously running " + *stored);
  if (!isOfFirstGeneration(*stored)) {
    activePopover_ = ActivePopoverContent::whatsNew;
    popoverIsPresented_ = true;
    return;
  }
  showUpdateFromOne_ = true;
  lastUsedAppVersion_.set(currentVersion());
  resetCounts();
  moveLegacyImages();
  listAfterMove_ = platform_.mainQueue.asyncAfter(secondsUntilMoved, [this] { reloadConfigs(); });
}

std::string ModernContentView::currentVersion() const {
  const auto version = platform_.bundle.shortVersion();
  if (!version) fatalError("the bundle has no CFBundleShortVersionString");
  platform_.debugConsole.print(*version);
  return *version;
}

void ModernContentView::resetCounts() const {
  configAmounts_.set(0);
  selectedConfig_.set(0);
}

/// A copy in truth: the first generation's files stay.
void ModernContentView::moveLegacyImages() const {
  const auto amount = configAmounts_.get();
  const ImageLoader loader(platform_);
  const auto light = loader.loadLegacy("original", lightStyle);
  const auto dark = loader.loadLegacy("original", darkStyle);
  if (!light || !dark) return;
  platform_.debugConsole.print("Got Legacy Light and Dark");
  const ImageCropper cropper(platform_);
  cropper.store(*light, lightStyle, {});
  cropper.store(*dark, darkStyle, {});
  platform_.debugConsole.print("Moved to new location");
  if (!amount) fatalError("amountOfConfigs is missing");
  configAmounts_.set(checkedAdd(*amount, 1));
}

void ModernContentView::reloadConfigs() {
  const auto stored = configAmounts_.read();
  isListOld_ = !stored;
  if (isListOld_) return changed();
  vitrelleConfigs_.clear();
  const ImageLoader loader(platform_);
  const std::int64_t amount = listed(stored->value_or(0));
  for (StyleNumber number; number.value < amount; ++number.value) {
    const auto light = loader.loadSlice("original", lightStyle, number);
    const auto dark = loader.loadSlice("original", darkStyle, number);
    if (light && dark) vitrelleConfigs_.push_back({number, *light, *dark});
  }
  changed();
}

bool ModernContentView::showsCreateCard() const {
  return amountOfConfigs() < maximumStyles && canBeChanged();
}

bool ModernContentView::canBeChanged() const {
  const GroupStore store(platform_);
  return !launchWaits_ && store.check(Suite::group) && store.check(Suite::standard);
}

void ModernContentView::selectConfig(StyleNumber number) {
  if (isSelected(number) || !canBeChanged()) {
    platform_.haptics.error();
    return;
  }
  selectedConfig_.set(number.value);
  platform_.haptics.success();
  platform_.widgetCenter.reloadAllTimelines();
}

bool ModernContentView::openWidgetCentre() {
  if (amountOfConfigs() >= 1) return true;
  // Whether there are styles shows only in a store that can be read.
  showingAlert_ = configAmounts_.read().ok();
  if (!showingAlert_) platform_.haptics.error();
  changed();
  return false;
}

void ModernContentView::dismissAlert() {
  showingAlert_ = false;
  changed();
}

void ModernContentView::dismissOnboarding() {
  showOnboarding_ = false;
  changed();
}

void ModernContentView::dismissUpdateFromOne() {
  showUpdateFromOne_ = false;
  changed();
}

std::int64_t ModernContentView::pageCount() const {
  const std::int64_t amount = listed(amountOfConfigs());
  return amount == maximumStyles ? amount : amount + 1;
}

double ModernContentView::pageWidth() const {
  return platform_.device.screenBounds().width / 1.5;
}

} // namespace vitrelle
