#include "ui/lifecycle/EditorScreen.h"

#include "host/painting/PainterValues.h"
#include "ui/parts/GivenPictures.h"

#include <string>
#include <utility>

namespace vitrelle::ui {

EditorScreen::EditorScreen(const Platform& platform, std::shared_ptr<StyleEditor> screen)
    : StyleScreen(screen->family(), "editor"),
      platform_(platform),
      screen_(std::move(screen)),
      second_(dynamic_cast<StyleSecond*>(screen_.get())),
      form_(*screen_),
      view_(screen_->onChange([this] {
        form_.refresh();
        Q_EMIT changed();
      })) {}

QString EditorScreen::sheet() const {
  const auto active = screen_->activeSheet();
  return active ? controlName(active->row.control) : QString();
}

QString EditorScreen::sheetValue() const {
  const auto active = screen_->activeSheet();
  const auto* words = active ? std::get_if<std::string>(&active->value) : nullptr;
  return words == nullptr ? QString() : QString::fromStdString(*words);
}

QList<QColor> EditorScreen::suggestedColours() const {
  QList<QColor> colours;
  if (second_ == nullptr) return colours;
  for (const PlatformColour& colour : second_->suggestions().palleteColours())
    colours += host::qColour(colour);
  return colours;
}

void EditorScreen::settle() {
  if (second_ == nullptr || settled_) return;
  settled_ = true;
  second_->startSuggestions();
}

QString EditorScreen::takeFile(const QUrl& file) {
  return take(givenFile(platform_, file));
}

QString EditorScreen::takeBytes(const QByteArray& bytes) {
  return take(givenBytes(platform_, bytes, "what was dropped"));
}

QString EditorScreen::take(const Result<Image>& picture) {
  if (!picture)
    return QString::fromStdString(picture.failure().what + ": " + picture.failure().why);
  screen_->takePicture(*picture);
  return {};
}

void EditorScreen::pick(const QString& value) {
  if (const auto active = screen_->activeSheet())
    screen_->setValue(active->index, value.toStdString());
}

} // namespace vitrelle::ui
