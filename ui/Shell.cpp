#include "ui/Shell.h"

#include "core/store/Keys.h"
#include "core/store/StoredValue.h"
#include "ui/Addresses.h"
#include "ui/app/ScreenTable.h"
#include "ui/app/WindowPlace.h"
#include "ui/parts/GivenPictures.h"
#include "ui/pickers/PictureFolder.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QEvent>
#include <QFileInfo>
#include <QGuiApplication>
#include <QVariant>

#include <utility>

namespace vitrelle::ui {

namespace {

constexpr char ownerProperty[] = "shell";

} // namespace

Shell::Shell(const Platform& platform, ShellOptions options)
    : platform_(platform),
      options_(std::move(options)),
      surroundings_(platform, options_.framed, options_.animated),
      notices_(this),
      locationQuestion_(platform),
      reviewQuestion_(platform),
      navigator_(platform, notices_),
      root_(platform) {
  engine_.addImportPath(QStringLiteral("qrc:/qt/qml"));
  engine_.setProperty(ownerProperty, QVariant::fromValue(this));
  surroundings_.give(engine_);
  notices_.give(engine_);
  connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, &Shell::canPasteChanged);
  qGuiApp->installEventFilter(this);
}

Shell::~Shell() {
  if (options_.framed && window_ != nullptr) keepPlace(platform_, *window_);
  Q_EMIT navigator_.closing();
}

Shell* Shell::create(QQmlEngine* engine, QJSEngine*) {
  auto* shell = engine->property(ownerProperty).value<Shell*>();
  QJSEngine::setObjectOwnership(shell, QJSEngine::CppOwnership);
  return shell;
}

QStringList Shell::screenNames() {
  QStringList names;
  for (const ScreenEntry& entry : screenTable())
    names << QString::fromStdString(entry.name);
  return names;
}

bool Shell::open() {
  engine_.load(QUrl(QStringLiteral("qrc:/qt/qml/Vitrelle/Main.qml")));
  if (engine_.rootObjects().isEmpty()) return false;
  window_ = qobject_cast<QQuickWindow*>(engine_.rootObjects().constFirst());
  if (window_ == nullptr) return false;
  surroundings_.setWindow(window_);
  if (options_.framed) restorePlace(platform_, *window_);
  window_->show();
  return true;
}

void Shell::raise() {
  if (window_ == nullptr) return;
  window_->show();
  window_->raise();
  window_->requestActivate();
}

bool Shell::openReview() const {
  const QUrl address = addresses::set(addresses::review);
  return !address.isEmpty() && QDesktopServices::openUrl(address);
}

bool Shell::canPaste() const {
  return hasPicture(clipboardOffer());
}

bool Shell::eventFilter(QObject* watched, QEvent* event) {
  if (watched == window_ && event->type() == QEvent::Close) keepPlace(platform_, *window_);
  return QObject::eventFilter(watched, event);
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

} // namespace vitrelle::ui
