#include "core/centre/SettingPreview.h"

#include "core/drawing/Shapes.h"
#include "core/lifecycle/Backdrop.h"

namespace vitrelle {

PointSize settingPreviewSize(const Platform& platform) {
  return {panelWidth(platform), 150};
}

View settingPreviewGround() {
  const View frame = filled(
      [](const PointRect& box) { return shapes::continuousRectangle(box, settingPreviewRadius); },
      {0.56, 0.56, 0.58});
  return shadowed(frame, {.colour = {0, 0, 0, 0.33}, .radius = 7});
}

} // namespace vitrelle
