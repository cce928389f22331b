#include "ui/lifecycle/GalleryScreen.h"

namespace vitrelle::ui {

GalleryScreen::GalleryScreen(const Platform& platform, const FamilyScreens& family)
    : platform_(platform),
      family_(family),
      screen_(family.gallery(platform)),
      tiles_(*screen_),
      view_(screen_->onChange([this] {
        tiles_.refresh();
        Q_EMIT changed();
      })) {}

EditorScreen* GalleryScreen::editor() const {
  return new EditorScreen(platform_, family_, {EditorMode::edit, screen_->needToEdit()});
}

AssignScreen* GalleryScreen::assign() const {
  return new AssignScreen(platform_, family_, screen_->needToEdit());
}

} // namespace vitrelle::ui
