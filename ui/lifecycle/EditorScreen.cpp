#include "ui/lifecycle/EditorScreen.h"

namespace vitrelle::ui {

EditorScreen::EditorScreen(const Platform& platform, const FamilyScreens& family,
                           const EditorTask& task)
    : EditorScreen(platform, family.setup(platform, task), nullptr) {}

EditorScreen::EditorScreen(const Platform& platform, std::unique_ptr<StyleFirstStep> first,
                           std::unique_ptr<StyleSecondStep> second)
    : platform_(platform),
      first_(std::move(first)),
      second_(std::move(second)),
      screen_(first_ ? static_cast<StyleEditor&>(*first_) : *second_),
      previewSize_(mediumPreviewSize(platform)),
      form_(screen_),
      view_(screen_.onChange([this] {
        form_.refresh();
        Q_EMIT changed();
      })) {}

QList<QColor> EditorScreen::suggestedColours() const {
  QList<QColor> colours;
  if (!second_) return colours;
  for (const PlatformColour& colour : second_->suggestions().palleteColours()) {
    colours += QColor::fromRgbF(static_cast<float>(colour.red), static_cast<float>(colour.green),
                                static_cast<float>(colour.blue));
  }
  return colours;
}

void EditorScreen::settle() {
  if (!second_ || settled_) return;
  settled_ = true;
  second_->startSuggestions();
}

EditorScreen* EditorScreen::next() const {
  return first_ ? new EditorScreen(platform_, nullptr, first_->next()) : nullptr;
}

} // namespace vitrelle::ui
