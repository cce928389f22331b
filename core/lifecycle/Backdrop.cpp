#include "core/lifecycle/Backdrop.h"

#include "core/slicing/ImageLoader.h"
#include "core/slicing/Measurements.h"
#include "core/store/GroupStore.h"
#include "core/store/Keys.h"

#include <cmath>

namespace vitrelle {

InterfaceStyle currentAppearance(const Platform& platform) {
  return platform.device.userInterfaceStyle() == darkStyle ? darkStyle : lightStyle;
}

std::int64_t styleInUse(const Platform& platform) {
  return GroupStore(platform).valueOrDefault(keys::selectedConfig);
}

std::optional<SliceName> findSlice(const Platform& platform, WidgetLocationImageNames slot,
                                   std::int64_t config, InterfaceStyle style) {
  const std::string_view stem = rawValue(slot);
  if (!ImageLoader(platform).loadSlice(stem, style, config)) return std::nullopt;
  return SliceName{std::string(stem), config, style};
}

std::optional<SliceName> currentSlice(const Platform& platform, WidgetLocationImageNames slot) {
  return findSlice(platform, slot, styleInUse(platform), currentAppearance(platform));
}

double panelWidth(const Platform& platform) {
  return platform.device.screenBounds().width - 60;
}

PointSize mediumPreviewSize(const Platform& platform) {
  // A phone without measurements gets the proportions of most of the others.
  constexpr PixelRect usual{0, 0, 1014, 474};
  Platform quiet = platform; // the lookup tells the debug console, which this is no news for
  quiet.debugConsole.print = [](const std::string&) {};
  const WidgetMeasurements measured = Measurements::current(quiet);
  const PixelRect slot = measured.widgetSize > 0
                             ? slotRectangle(WidgetLocationImageNames::mediumTop, measured)
                             : usual;
  const double width = panelWidth(platform);
  return {width,
          std::round(width * static_cast<double>(slot.height) / static_cast<double>(slot.width))};
}

} // namespace vitrelle
