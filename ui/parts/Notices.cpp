#include "ui/parts/Notices.h"

#include <QVariant>

namespace vitrelle::ui {

namespace {

constexpr char ownerProperty[] = "notices";

} // namespace

void Notices::give(QQmlEngine& engine) {
  engine.setProperty(ownerProperty, QVariant::fromValue(this));
}

Notices* Notices::create(QQmlEngine* engine, QJSEngine*) {
  auto* notices = engine->property(ownerProperty).value<Notices*>();
  QJSEngine::setObjectOwnership(notices, QJSEngine::CppOwnership);
  return notices;
}

void Notices::show(const QString& text, Kind kind) {
  if (!text_.isEmpty() && kind_ == Trouble && kind != Trouble) return;
  text_ = text;
  kind_ = kind;
  Q_EMIT changed();
}

void Notices::dismiss() {
  if (text_.isEmpty()) return;
  text_.clear();
  Q_EMIT changed();
}

} // namespace vitrelle::ui
