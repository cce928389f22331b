#include "core/centre/WidgetSettingsView.h"

#include "core/centre/BetaBuild.h"
#include "core/store/Keys.h"

namespace vitrelle {

WidgetSettingsView::WidgetSettingsView(const Platform& platform)
    : platform_(platform),
      isBeta_(isBetaBuild(platform)),
      quit_(platform, keys::quitIfWidgetClicked),
      format_(platform, keys::storedWeatherTemperatureFormat),
      bindings_{quit_.onChange([this](const auto&) { changed(); }),
                format_.onChange([this](const auto&) { changed(); })} {}

void WidgetSettingsView::setQuitIfWidgetClicked(bool quit) {
  if (!isBeta_) quit_.set(quit);
  changed();
}

void WidgetSettingsView::setWeatherTempFormat(bool fahrenheit) {
  if (fahrenheit == weatherTempFormat()) return;
  format_.set(fahrenheit);
  platform_.widgetCenter.reloadAllTimelines();
  changed();
}

void WidgetSettingsView::refreshWidgets() const {
  platform_.haptics.success();
  platform_.widgetCenter.reloadAllTimelines();
}

} // namespace vitrelle
