#include "core/lifecycle/StyleFamily.h"

namespace vitrelle {

PointRect StyleFamily::previewBox(const Platform& platform, const PointSize& page) const {
  return topBox(platform, page, platform.device.screenBounds().width * 0.25);
}

PointRect topBox(const Platform& platform, const PointSize& page, double side) {
  const PointSize screen = platform.device.screenBounds();
  // The square and the padding behind it stand in the middle of the page's width.
  const double left = (page.width - (side + screen.width / 3.5)) / 2;
  return {left, screen.height / 1.5 * 0.125, side, side};
}

} // namespace vitrelle
