// One wallpaper style as the root screen lists it. In memory only: a style is its files.
#pragma once

#include "core/platform/Image.h"

#include <cstdint>

namespace vitrelle {

struct VitrelleConfigData {
  std::int64_t configNumber = 0; ///< from 0
  Image configImageLight;        ///< the full screenshots
  Image configImageDark;
  bool operator==(const VitrelleConfigData&) const = default;
};

} // namespace vitrelle
