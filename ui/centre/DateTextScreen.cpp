#include "ui/centre/DateTextScreen.h"

#include "core/centre/SettingPreview.h"
#include "host/painting/PainterValues.h"

#include <algorithm>
#include <limits>

namespace vitrelle::ui {

DateTextScreen::DateTextScreen(const Platform& platform)
    : screen_(platform),
      previewSize_(settingPreviewSize(platform)),
      ground_(Face::of(layOut(settingPreviewGround(), previewSize_, platform.drawing))),
      view_(screen_.onChange([this] { Q_EMIT changed(); })) {}

QColor DateTextScreen::colour() const {
  return host::qColour(screen_.dateColour());
}

void DateTextScreen::setColour(const QColor& colour) {
  screen_.setDateColour(host::platformColour(colour));
}

int DateTextScreen::size() const {
  constexpr std::int64_t largest = std::numeric_limits<int>::max();
  return static_cast<int>(std::clamp(screen_.dateFontSize(), -largest, largest));
}

QColor DateTextScreen::cover() const {
  const SolidBackground& solid = screen_.background();
  return solid.isOn() ? host::qColour(solid.colour()) : QColor(Qt::transparent);
}

} // namespace vitrelle::ui
