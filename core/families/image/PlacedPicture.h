// A cut-out picture at its place on a widget.
#pragma once

#include "core/drawing/View.h"
#include "core/platform/Image.h"

#include <cstdint>
#include <string>

namespace vitrelle {

struct PlacedPicture {
  Image image;
  std::int64_t size = 0;           ///< 1 is large, any other number small
  std::string position = "centre"; ///< or "left", "top", "bottom", "right"; any other hides it
  bool showShadow = true;
  /// Of a widget that is hardly wider than the picture with the room beside it. There that room
  /// lies on the far side, as it does above and below.
  bool isSmallWidget = false;

  /// The picture is stretched into a square. Its side and the room beside it are shares of the
  /// screen's width, in points.
  View view(double screenWidth) const;
};

} // namespace vitrelle
