#include "ui/lifecycle/PreviewScreen.h"

namespace vitrelle::ui {

Face PreviewScreen::face() const {
  const PointRect box = screen_->widgetBox();
  return Face::of(screen_->face({box.width, box.height}));
}

QList<BackdropName> PreviewScreen::pages() const {
  QList<BackdropName> pages;
  for (const auto& page : screen_->pages())
    pages += BackdropName::of(page);
  return pages;
}

QRectF PreviewScreen::widgetBox() const {
  const PointRect box = screen_->widgetBox();
  return {box.x, box.y, box.width, box.height};
}

} // namespace vitrelle::ui
