#include "ui/pickers/FontScreen.h"

#include <algorithm>

namespace vitrelle::ui {

namespace {

/// Beside the list's edges and the tick, and one line high.
PointSize nameRoomOn(const PointSize& screen) {
  return {screen.width - 100, 34};
}

} // namespace

FontScreen::FontScreen(const Platform& platform)
    : platform_(platform),
      nameRoom_(nameRoomOn(platform.device.screenBounds())),
      list_(platform, nameRoom_) {}

FontScreen::FontScreen(const Platform& platform, const StoredFont& font) : FontScreen(platform) {
  stored_.emplace(platform, font, [this] { Q_EMIT dismissed(); });
}

QString FontScreen::storedName() const {
  return stored_ ? QString::fromStdString(stored_->fontPicked()) : QString();
}

void FontScreen::search(const QString& words) {
  list_.show(fontFamilies(platform_.fonts, words.trimmed().toStdString()));
  Q_EMIT wordsChanged();
}

int FontScreen::indexOf(const QString& postScriptName) const {
  const auto found = std::ranges::find(list_.families(), postScriptName.toStdString(),
                                       &FontFamily::postScriptName);
  return found == list_.families().end() ? -1 : static_cast<int>(found - list_.families().begin());
}

void FontScreen::pick(int index) {
  if (index < 0 || index >= count()) return;
  const FontFamily& family = list_.families()[static_cast<std::size_t>(index)];
  if (stored_) {
    stored_->didPickFont(family);
    return;
  }
  const ModernFontPicker picker(
      [this](const std::string& name) { Q_EMIT fontPicked(QString::fromStdString(name)); },
      [this] { Q_EMIT dismissed(); });
  picker.didPickFont(family);
}

} // namespace vitrelle::ui
