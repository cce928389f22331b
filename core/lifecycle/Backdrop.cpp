#include "core/lifecycle/Backdrop.h"

#include "core/slicing/ImageLoader.h"
#include "core/store/GroupStore.h"
#include "core/store/Keys.h"

namespace vitrelle {

InterfaceStyle currentAppearance(const Platform& platform) {
  return platform.device.userInterfaceStyle() == darkStyle ? darkStyle : lightStyle;
}

StyleNumber styleInUse(const Platform& platform) {
  return {GroupStore(platform).valueOrDefault(keys::selectedConfig)};
}

std::optional<SliceName> findSlice(const Platform& platform, WidgetLocationImageNames slot,
                                   StyleNumber number, InterfaceStyle style) {
  const std::string_view stem = rawValue(slot);
  if (!ImageLoader(platform).loadSlice(stem, style, number)) return std::nullopt;
  return SliceName{std::string(stem), number, style};
}

std::optional<SliceName> currentSlice(const Platform& platform, WidgetLocationImageNames slot) {
  return findSlice(platform, slot, styleInUse(platform), currentAppearance(platform));
}

double panelWidth(const Platform& platform) {
  return platform.device.screenBounds().width - 60;
}

PointSize mediumPreviewSize(const Platform& platform) {
  return {panelWidth(platform), platform.device.screenBounds().width / 2.5};
}

} // namespace vitrelle
