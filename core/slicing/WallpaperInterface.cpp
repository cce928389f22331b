#include "core/slicing/WallpaperInterface.h"

#include "core/slicing/ImageLoader.h"

#include <utility>

namespace vitrelle {

std::shared_ptr<WallpaperInterface> WallpaperInterface::shared(const Platform& platform) {
  return platform.shared.get<WallpaperInterface>(
      [&platform] { return new WallpaperInterface(platform); });
}

void WallpaperInterface::replaceShared(const Platform& platform,
                                       std::shared_ptr<WallpaperInterface> other) {
  platform.shared.replace(std::move(other));
}

std::optional<Image> WallpaperInterface::image(WidgetLocationImageNames location,
                                               ColorScheme scheme, std::int64_t config) const {
  return image(location, scheme == ColorScheme::dark ? darkStyle : lightStyle, config);
}

std::optional<Image> WallpaperInterface::image(WidgetLocationImageNames location,
                                               InterfaceStyle style, std::int64_t config) const {
  return ImageLoader(platform_).loadSlice(rawValue(location), style, StyleNumber{config});
}

std::vector<StoredSlice> WallpaperInterface::setImage(const Image& image, InterfaceStyle style,
                                                      std::int64_t config) {
  if (style == darkStyle) darkImage_ = image;
  if (style == lightStyle) lightImage_ = image;
  return ImageCropper(platform_).store(image, style, config);
}

} // namespace vitrelle
