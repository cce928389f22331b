// The front door of the slices: read one by slot, store a screenshot and remember it.
#pragma once

#include "core/slicing/ImageCropper.h"
#include "core/slicing/WidgetLocation.h"

#include <memory>
#include <optional>
#include <vector>

namespace vitrelle {

enum class ColorScheme { light, dark };

class WallpaperInterface final {
 public:
  explicit WallpaperInterface(const Platform& platform) : platform_(platform) {}

  /// The one that all screens use; made at first use, and replaceable.
  static std::shared_ptr<WallpaperInterface> shared(const Platform& platform);
  static void replaceShared(const Platform& platform, std::shared_ptr<WallpaperInterface> other);

  /// The stored slice of a slot; nothing when there is none.
  std::optional<Image> image(WidgetLocationImageNames location, ColorScheme scheme,
                             StyleNumber number) const;
  std::optional<Image> image(WidgetLocationImageNames location, InterfaceStyle style,
                             StyleNumber number) const;

  /// Remembers the screenshot (a style that is neither light nor dark is not remembered) and
  /// stores its slices.
  std::vector<StoredSlice> setImage(const Image& image, InterfaceStyle style, StyleNumber number);

  /// The last screenshots that were set, until the process ends.
  const std::optional<Image>& lightImage() const { return lightImage_; }
  const std::optional<Image>& darkImage() const { return darkImage_; }

 private:
  const Platform& platform_;
  std::optional<Image> lightImage_;
  std::optional<Image> darkImage_;
};

} // namespace vitrelle
