// One wallpaper style as the root screen lists it. In memory only: a style is its files.
#pragma once

#include "core/platform/Image.h"
#include "core/store/Numbers.h"

namespace vitrelle {

struct VitrelleConfigData {
  StyleNumber configNumber;
  Image configImageLight; ///< the full screenshots
  Image configImageDark;
  bool operator==(const VitrelleConfigData&) const = default;
};

} // namespace vitrelle
