// Finds images in the group folder by name. Every load goes to the disk; nothing is cached.
#pragma once

#include "core/platform/Platform.h"
#include "core/slicing/WidgetLocation.h"
#include "core/store/Numbers.h"

#include <optional>
#include <string_view>

namespace vitrelle {

/// Each load gives nothing when the bundle's identifier has fewer than three parts, when there is
/// no group folder, and when no readable image lies there.
class ImageLoader final {
 public:
  explicit ImageLoader(const Platform& platform) : platform_(platform) {}

  /// A slice or a full screenshot of a style. No other appearance or style stands in for it.
  std::optional<Image> loadSlice(std::string_view name, InterfaceStyle style,
                                 StyleNumber number) const;

  /// The cut-out picture of an Image widget style, "overlayImage3.png".
  std::optional<Image> loadOverlay(RecordIndex index) const;

  /// A file of the first generation, which had one style and no numbers: "originalDark.png".
  std::optional<Image> loadLegacy(std::string_view name, InterfaceStyle style) const;

 private:
  std::optional<std::string> path(const std::string& fileName) const;
  std::optional<Image> load(const std::optional<std::string>& path) const;

  const Platform& platform_;
};

} // namespace vitrelle
