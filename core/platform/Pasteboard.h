// What the user copied elsewhere, as a source of pictures.
#pragma once

#include "core/platform/Image.h"

#include <functional>
#include <optional>

namespace vitrelle {

struct Pasteboard {
  /// Whether it says that it holds a picture.
  std::function<bool()> hasImages;
  /// The picture; nothing where it holds none that can be read after all.
  std::function<std::optional<Image>()> image;
};

} // namespace vitrelle
