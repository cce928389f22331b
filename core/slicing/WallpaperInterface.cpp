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
                                               ColorScheme scheme, StyleNumber number) const {
  return image(location, scheme == ColorScheme::dark ? darkStyle : lightStyle, number);
}

std::optional<Image> WallpaperInterface::image(WidgetLocationImageNames location,
                                               InterfaceStyle style, StyleNumber number) const {
  return ImageLoader(platform_).loadSlice(rawValue(location), style, number);
}

std::vector<StoredSlice> WallpaperInterface::setImage(const Image& image, InterfaceStyle style,
                                                      StyleNumber number) {
  if (style == darkStyle) darkImage_ = image;
  if (style == lightStyle) lightImage_ = image;
  return ImageCropper(platform_).store(image, style, number);
}

} // namespace vitrelle
