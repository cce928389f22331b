#include "ui/app/WindowPlace.h"

#include "core/store/Keys.h"
#include "core/store/StoredValue.h"

#include <QGuiApplication>
#include <QRegularExpression>
#include <QScreen>

namespace vitrelle::ui {

namespace {

StoredValue<std::string> storedPlace(const Platform& platform) {
  return {platform, keys::windowPlace};
}

/// Enough of it to be taken hold of.
bool isShown(const QRect& place) {
  constexpr int part = 100;
  for (const QScreen* screen : QGuiApplication::screens()) {
    const QRect seen = screen->availableGeometry() & place;
    if (seen.width() >= part && seen.height() >= part && seen.top() == place.top()) return true;
  }
  return false;
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
  const QSize screen = window.screen()->availableSize();
  window.resize(place->size().boundedTo(screen).expandedTo(window.minimumSize()));
  if (isShown(*place)) window.setPosition(place->topLeft());
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
