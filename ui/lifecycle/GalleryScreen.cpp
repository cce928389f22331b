#include "ui/lifecycle/GalleryScreen.h"

#include <utility>

namespace vitrelle::ui {

GalleryScreen::GalleryScreen(std::shared_ptr<StyleGallery> screen)
    : StyleScreen(screen->family(), "gallery"),
      screen_(std::move(screen)),
      tiles_(*screen_),
      view_(screen_->onChange([this] {
        tiles_.refresh();
        Q_EMIT changed();
      })) {}

} // namespace vitrelle::ui
