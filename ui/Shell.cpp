#include "ui/Shell.h"

#include "core/families/Families.h"
#include "core/store/Keys.h"
#include "core/store/StoredValue.h"
#include "ui/app/WindowPlace.h"
#include "ui/pickers/PictureFolder.h"

#include <QClipboard>
#include <QEvent>
#include <QFileInfo>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMimeData>
#include <QVariant>

namespace vitrelle::ui {

namespace {

constexpr char ownerProperty[] = "shell";

} // namespace

Shell::Shell(const Platform& platform, ShellOptions options)
    : platform_(platform), options_(std::move(options)), pictures_(platform), root_(platform) {
  engine_.addImportPath(QStringLiteral("qrc:/qt/qml"));
  engine_.setProperty(ownerProperty, QVariant::fromValue(this));
  connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, &Shell::canPasteChanged);
  qGuiApp->installEventFilter(this);
}

Shell::~Shell() {
  if (options_.framed && window_ != nullptr) keepPlace(platform_, *window_);
  Q_EMIT closing();
}

Shell* Shell::create(QQmlEngine* engine, QJSEngine*) {
  Shell* shell = &of(*engine);
  QJSEngine::setObjectOwnership(shell, QJSEngine::CppOwnership);
  return shell;
}

Shell& Shell::of(const QQmlEngine& engine) {
  return *engine.property(ownerProperty).value<Shell*>();
}

QStringList Shell::screenNames() {
  QStringList names;
  for (const ScreenEntry& entry : screenTable())
    names << entry.name;
  return names;
}

bool Shell::open() {
  engine_.load(QUrl(QStringLiteral("qrc:/qt/qml/Vitrelle/Main.qml")));
  if (engine_.rootObjects().isEmpty()) return false;
  window_ = qobject_cast<QQuickWindow*>(engine_.rootObjects().constFirst());
  if (window_ == nullptr) return false;
  if (options_.framed) {
    restorePlace(platform_, *window_);
  }
  window_->show();
  return true;
}

void Shell::raise() {
  if (window_ == nullptr) return;
  window_->show();
  window_->raise();
  window_->requestActivate();
}

qreal Shell::screenWidth() const {
  return platform_.device.screenBounds().width;
}

qreal Shell::screenHeight() const {
  return platform_.device.screenBounds().height;
}

bool Shell::isDark() const {
  return platform_.device.userInterfaceStyle() == darkStyle;
}

bool Shell::canPaste() const {
  const QMimeData* data = QGuiApplication::clipboard()->mimeData();
  return data != nullptr && (data->hasImage() || data->hasUrls());
}

IntakeScreen* Shell::newStyle() {
  return new IntakeScreen(*this, std::make_unique<ModernNewLightDark>(platform_));
}

IntakeScreen* Shell::changeStyle(int number) {
  return new IntakeScreen(*this, std::make_unique<ModernChangeLightDark>(platform_, number));
}

bool Shell::eventFilter(QObject* watched, QEvent* event) {
  if (watched == window_ && event->type() == QEvent::Close) keepPlace(platform_, *window_);
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

void Shell::noteKey(const QKeyEvent& event) {
  if (event.type() == QEvent::KeyRelease) {
    lastKey_ = event.key();
    lastKeyTime_ = event.timestamp();
    return;
  }
  // Not every repetition says that it is one, but each comes at the time of a release.
  const bool isAtRelease = event.key() == lastKey_ && event.timestamp() == lastKeyTime_;
  keyHeld_ = event.isAutoRepeat() || isAtRelease;
}

ScreenEntry Shell::screenEntry(const QString& name) const {
  for (const ScreenEntry& entry : screenTable()) {
    if (entry.name == name) return entry;
  }
  return {};
}

FamilyScreen* Shell::family(const QString& name) const {
  return new FamilyScreen(platform_, styleFamily(name.toStdString()));
}

QString Shell::pictureFolder() const {
  const StoredValue remembered(platform_, keys::pictureFolder);
  return firstPictureFolder(QString::fromStdString(remembered.getOrDefault()));
}

void Shell::rememberPicture(const QUrl& file) const {
  const StoredValue remembered(platform_, keys::pictureFolder);
  const std::string folder = QFileInfo(file.toLocalFile()).path().toStdString();
  if (file.isLocalFile() && remembered.get() != folder) remembered.set(folder);
}

void Shell::showNotice(const QString& text, NoticeKind kind) {
  if (!notice_.isEmpty() && noticeKind_ == Trouble && kind != Trouble) return;
  notice_ = text;
  noticeKind_ = kind;
  Q_EMIT noticeChanged();
}

void Shell::dismissNotice() {
  if (notice_.isEmpty()) return;
  notice_.clear();
  Q_EMIT noticeChanged();
}

} // namespace vitrelle::ui
