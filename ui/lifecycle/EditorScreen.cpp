#include "ui/lifecycle/EditorScreen.h"

namespace vitrelle::ui {

EditorScreen::EditorScreen(const Platform& platform, const FamilyScreens& family,
                           const EditorTask& task)
    : EditorScreen(platform, family, family.setup(platform, task), nullptr) {}

EditorScreen::EditorScreen(const Platform& platform, const FamilyScreens& family,
                           std::unique_ptr<StyleEditor> screen, StyleSecondStep* second)
    : platform_(platform),
      family_(family),
      screen_(std::move(screen)),
      second_(second),
      previewSize_(mediumPreviewSize(platform)),
      form_(*screen_),
      view_(screen_->onChange([this] {
        form_.refresh();
        Q_EMIT changed();
      })) {}

QList<QColor> EditorScreen::suggestedColours() const {
  QList<QColor> colours;
  if (second_ == nullptr) return colours;
  for (const PlatformColour& colour : second_->suggestions().palleteColours()) {
    colours += QColor::fromRgbF(static_cast<float>(colour.red), static_cast<float>(colour.green),
                                static_cast<float>(colour.blue));
  }
  return colours;
}

void EditorScreen::settle() {
  if (second_ == nullptr || settled_) return;
  settled_ = true;
  second_->startSuggestions();
}

EditorScreen* EditorScreen::next() const {
  auto second = family_.secondStep(platform_, screen_->task());
  StyleSecondStep* step = second.get();
  return new EditorScreen(platform_, family_, std::move(second), step);
}

} // namespace vitrelle::ui
