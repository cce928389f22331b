#include "core/slicing/ImageLoader.h"

#include "core/slicing/ImageOverlay.h"

#include <algorithm>

namespace vitrelle {

std::optional<Image> ImageLoader::loadSlice(std::string_view name, InterfaceStyle style,
                                            StyleNumber number) const {
  return load(path(sliceFileName(number, name, style)));
}

std::optional<Image> ImageLoader::loadOverlay(RecordIndex index) const {
  const auto file = path(overlayFileName(index));
  if (file) platform_.debugConsole.print("Trying to load from " + *file);
  return load(file);
}

std::optional<Image> ImageLoader::loadLegacy(std::string_view name, InterfaceStyle style) const {
  return load(path(std::string(name) + (style == darkStyle ? "Dark.png" : ".png")));
}

std::optional<std::string> ImageLoader::path(const std::string& fileName) const {
  const auto identifier = platform_.bundle.identifier();
  if (!identifier || std::ranges::count(*identifier, '.') < 2) return std::nullopt;
  const auto folder = platform_.files.groupContainer();
  if (!folder) return std::nullopt;
  return *folder + "/" + fileName;
}

std::optional<Image> ImageLoader::load(const std::optional<std::string>& path) const {
  if (!path || !platform_.files.fileExists(*path)) return std::nullopt;
  Result<Image> image = platform_.images.load(*path);
  if (!image) return std::nullopt;
  return *std::move(image);
}

} // namespace vitrelle
