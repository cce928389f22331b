#include "ui/app/WindowPlace.h"

#include "core/store/Keys.h"
#include "core/store/StoredValue.h"

#include <QGuiApplication>
#include <QRegularExpression>
#include <QScreen>

#include <algorithm>

namespace vitrelle::ui {

namespace {

StoredValue<std::string> storedPlace(const Platform& platform) {
  return {platform, keys::windowPlace};
}

/// For the window's frame, which the desktop draws above it.
constexpr int frame = 30;

/// The screen that shows enough of it to be taken hold of.
const QScreen* screenOf(const QRect& place) {
  constexpr int part = 100;
  for (const QScreen* screen : QGuiApplication::screens()) {
    const QRect seen = screen->availableGeometry() & place;
    if (seen.width() >= part && seen.height() >= part) return screen;
  }
  return nullptr;
}

} // namespace

std::optional<QRect> parsePlace(const QString& text) {
  static const QRegularExpression form(
      QStringLiteral("^(-?\\d{1,5}) (-?\\d{1,5}) (\\d{1,5}) (\\d{1,5})$"));
  const QRegularExpressionMatch match = form.match(text);
  if (!match.hasMatch()) return std::nullopt;
  const auto number = [&](int group) { return match.capturedView(group).toInt(); };
  return QRect(number(1), number(2), number(3), number(4));
}

void restorePlace(const Platform& platform, QWindow& window) {
  const auto stored = storedPlace(platform).get();
  const auto place = stored ? parsePlace(QString::fromStdString(*stored)) : std::nullopt;
  if (!place) return;
  const QScreen* screen = screenOf(*place);
  const QRect room =
      (screen == nullptr ? window.screen() : screen)->availableGeometry().adjusted(0, frame, 0, -2);
  QRect now(place->topLeft(), place->size().boundedTo(room.size()));
  window.resize(now.size().expandedTo(window.minimumSize()));
  if (screen == nullptr) return;
  // A scale or a screen may have changed since.
  now.moveTop(std::max(room.top(), std::min(now.top(), room.bottom() - now.height())));
  window.setPosition(now.topLeft());
}

void keepPlace(const Platform& platform, const QWindow& window) {
  if (window.visibility() != QWindow::Windowed) return;
  const QRect place = window.geometry();
  const QString text = QStringLiteral("%1 %2 %3 %4")
                           .arg(place.x())
                           .arg(place.y())
                           .arg(place.width())
                           .arg(place.height());
  const auto stored = storedPlace(platform);
  if (stored.get() != text.toStdString()) stored.set(text.toStdString());
}

} // namespace vitrelle::ui
