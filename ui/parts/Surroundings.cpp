#include "ui/parts/Surroundings.h"

#include "core/slicing/DeviceNames.h"
#include "core/slicing/WidgetLocation.h"

#include <QEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QVariant>

namespace vitrelle::ui {

namespace {

constexpr char ownerProperty[] = "surroundings";

} // namespace

Surroundings::Surroundings(const Platform& platform, bool framed, bool animated)
    : platform_(platform), framed_(framed), animated_(animated), pictures_(platform) {
  qGuiApp->installEventFilter(this);
  phones_ = platform.phoneBook.watch([this](const PhoneChoice&) { followPhone(); });
}

void Surroundings::give(QQmlEngine& engine) {
  engine.setProperty(ownerProperty, QVariant::fromValue(this));
}

Surroundings& Surroundings::of(const QQmlEngine& engine) {
  return *engine.property(ownerProperty).value<Surroundings*>();
}

Surroundings* Surroundings::create(QQmlEngine* engine, QJSEngine*) {
  Surroundings* surroundings = &of(*engine);
  QJSEngine::setObjectOwnership(surroundings, QJSEngine::CppOwnership);
  return surroundings;
}

bool Surroundings::isDark() const {
  return platform_.device.userInterfaceStyle() == darkStyle;
}

bool Surroundings::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::ApplicationPaletteChange) Q_EMIT darkChanged();
  const bool isKey = event->type() == QEvent::KeyPress;
  const bool isPointer =
      event->type() == QEvent::MouseButtonPress || event->type() == QEvent::TouchBegin;
  if (watched == window_ && (isKey || event->type() == QEvent::KeyRelease))
    noteKey(static_cast<const QKeyEvent&>(*event));
  if (watched == window_ && isKey != keysInUse_ && (isKey || isPointer)) {
    keysInUse_ = isKey;
    Q_EMIT keysInUseChanged();
  }
  return QObject::eventFilter(watched, event);
}

void Surroundings::followPhone() {
  forgetDevice(platform_); // another program may have changed it
  Q_EMIT screenChanged();
  Q_EMIT darkChanged();
}

void Surroundings::noteKey(const QKeyEvent& event) {
  if (event.type() == QEvent::KeyRelease) {
    lastKey_ = event.key();
    lastKeyTime_ = event.timestamp();
    return;
  }
  // Not every repetition says that it is one, but each comes at the time of a release.
  const bool isAtRelease = event.key() == lastKey_ && event.timestamp() == lastKeyTime_;
  keyHeld_ = event.isAutoRepeat() || isAtRelease;
}

} // namespace vitrelle::ui
