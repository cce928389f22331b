#include "core/app/SceneDelegate.h"

#include "core/store/Keys.h"
#include "core/store/StoredValue.h"

#include <algorithm>
#include <string>
#include <utility>

namespace vitrelle {

ActiveSheet supportSheet(std::string_view lastPathComponent) {
  static constexpr std::pair<std::string_view, ActiveSheet> topics[] = {
      {"perspective-zoom", ActiveSheet::perspectiveZoom},
      {"widget-refreshing", ActiveSheet::widgetRefresh},
      {"widget-no-data", ActiveSheet::widgetPlaceholder},
      {"widget-label", ActiveSheet::widgetAppleDumb}};
  std::string lowered(lastPathComponent);
  std::ranges::transform(lowered, lowered.begin(), [](char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  });
  const auto* topic =
      std::ranges::find(topics, lowered, &std::pair<std::string_view, ActiveSheet>::first);
  return topic == std::end(topics) ? ActiveSheet::invalid : topic->second;
}

bool AppDelegate::didFinishLaunching() const {
  platform_.bannerKit.start();
  platform_.battery.setMonitoringEnabled(true);
  return true;
}

void SceneDelegate::willConnect(std::span<const Link> links) const {
  if (!links.empty()) openWidgetTap(links.front());
  StoredValue<std::string>(platform_, keys::destination).set("home");
}

void SceneDelegate::openLinks(std::span<const Link> links) const {
  if (links.empty()) return;
  const Link& link = links.front();
  if (link.host == "support") {
    const auto sheet = static_cast<std::int64_t>(supportSheet(link.lastPathComponent));
    platform_.notificationCentre.post(
        {std::string(deeplinkNotification), {{std::string(deeplinkKey), sheet}}});
  }
  openWidgetTap(link);
}

void SceneDelegate::openWidgetTap(const Link& link) const {
  if (link.host != "clickwidget") return;
  if (StoredValue<bool>(platform_, keys::quitIfWidgetClicked).get().value_or(false)) {
    platform_.application.suspend();
  }
}

} // namespace vitrelle
