#include "ui/centre/SolidBackgroundScreen.h"

#include "core/centre/SettingPreview.h"
#include "host/painting/PainterValues.h"

namespace vitrelle::ui {

SolidBackgroundScreen::SolidBackgroundScreen(const Platform& platform)
    : screen_(platform),
      previewSize_(settingPreviewSize(platform)),
      ground_(Face::of(layOut(settingPreviewGround(), previewSize_, platform.drawing))),
      view_(screen_.onChange([this] { Q_EMIT changed(); })) {}

QColor SolidBackgroundScreen::colour() const {
  return host::qColour(screen_.solidBackgroundColour());
}

void SolidBackgroundScreen::setColour(const QColor& colour) {
  screen_.setSolidBackgroundColour(host::platformColour(colour));
}

} // namespace vitrelle::ui
