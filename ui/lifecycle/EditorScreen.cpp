#include "ui/lifecycle/EditorScreen.h"

namespace vitrelle::ui {

EditorScreen::EditorScreen(const Platform& platform, const FamilyScreens& family,
                           const EditorTask& task)
    : EditorScreen(platform, family.setup(platform, task)) {}

EditorScreen::EditorScreen(const Platform& platform, std::unique_ptr<StyleFirstStep> screen)
    : EditorScreen(platform, screen.get(), nullptr, std::move(screen)) {}

EditorScreen::EditorScreen(const Platform& platform, std::unique_ptr<StyleSecondStep> screen)
    : EditorScreen(platform, nullptr, screen.get(), std::move(screen)) {}

EditorScreen::EditorScreen(const Platform& platform, StyleFirstStep* first, StyleSecondStep* second,
                           std::unique_ptr<StyleEditor> screen)
    : platform_(platform),
      screen_(std::move(screen)),
      first_(first),
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
  return first_ == nullptr ? nullptr : new EditorScreen(platform_, first_->next());
}

} // namespace vitrelle::ui
