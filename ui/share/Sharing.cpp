#include "ui/share/Sharing.h"

#include "core/store/Keys.h"
#include "core/store/StoredValue.h"
#include "host/painting/PainterValues.h"
#include "ui/parts/PictureSource.h"
#include "ui/parts/Surroundings.h"
#include "ui/pickers/PictureFolder.h"

#include <QClipboard>
#include <QDir>
#include <QDrag>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPixmap>
#include <QProcess>
#include <QSaveFile>
#include <QTimer>

namespace vitrelle::ui {

namespace {

const QString opener = QStringLiteral("xdg-open");
/// One that finds no program says so at once; what it reports later is how that program ended.
constexpr qint64 openerPatience = 10'000; // milliseconds
constexpr int draggedSide = 96;           // points

} // namespace

Sharing* Sharing::create(QQmlEngine* engine, QJSEngine*) {
  return new Sharing(Surroundings::of(*engine).platform());
}

QString Sharing::folder() const {
  const StoredValue remembered(platform_, keys::saveFolder);
  return firstPictureFolder(QString::fromStdString(remembered.getOrDefault()));
}

QUrl Sharing::urlIn(const QString& folder, const QString& fileName) {
  return QUrl::fromLocalFile(QDir(folder).filePath(fileName));
}

bool Sharing::isFolder(const QUrl& place) {
  return QFileInfo(place.toLocalFile()).isDir();
}

bool Sharing::exists(const QUrl& file) {
  const QFileInfo info(file.toLocalFile());
  return info.exists() || info.isSymLink();
}

QString Sharing::save(const SharedItem& item, const QUrl& file) {
  const QString path = file.toLocalFile();
  QSaveFile target(path);
  if (path.isEmpty() || !target.open(QIODevice::WriteOnly) || target.write(item.bytes) < 0 ||
      !target.commit()) {
    return qtTrId("app.share.unsaved").arg(file.fileName(), target.errorString());
  }
  const StoredValue remembered(platform_, keys::saveFolder);
  const std::string folder = QFileInfo(path).absolutePath().toStdString();
  if (remembered.get() != folder) remembered.set(folder);
  return {};
}

void Sharing::copy(const SharedItem& item) {
  QGuiApplication::clipboard()->setMimeData(mimeData(item));
}

void Sharing::open(const SharedItem& item) {
  const QString path = temporaryFile(item);
  if (path.isEmpty()) return Q_EMIT openFailed(qtTrId("app.share.noCopy"));
  // It is nobody's, for it may go on when this program has ended.
  auto* process = new QProcess;
  process->setStandardInputFile(QProcess::nullDevice());
  process->setStandardOutputFile(QProcess::nullDevice());
  process->setStandardErrorFile(QProcess::nullDevice());
  connect(process, &QProcess::finished, process, &QObject::deleteLater);
  connect(process, &QProcess::errorOccurred, this, [this, process](QProcess::ProcessError error) {
    if (error != QProcess::FailedToStart) return;
    process->deleteLater();
    Q_EMIT openFailed(qtTrId("app.share.noOpener").arg(opener));
  });
  QElapsedTimer since;
  since.start();
  connect(process, &QProcess::finished, this, [this, since](int status) {
    if (status != 0 && since.elapsed() < openerPatience)
      Q_EMIT openFailed(qtTrId("app.share.noProgram"));
  });
  process->start(opener, {path});
}

void Sharing::drag(const SharedItem& item, QQuickItem* source) {
  QTimer::singleShot(0, source, [this, item, source] { dragNow(item, source); });
}

void Sharing::dragNow(const SharedItem& item, QQuickItem* source) {
  auto* drag = new QDrag(source); // goes by itself in the end
  drag->setMimeData(mimeData(item));
  if (item.preview) {
    const qreal scale = source->window()->effectiveDevicePixelRatio();
    const QSizeF size = QSizeF(item.pixelWidth(), item.pixelHeight())
                            .scaled(draggedSide, draggedSide, Qt::KeepAspectRatio);
    QPixmap picture = QPixmap::fromImage(stretched(*item.preview, (size * scale).toSize()));
    picture.setDevicePixelRatio(scale);
    drag->setPixmap(picture);
    drag->setHotSpot(QPointF(size.width() / 2, size.height() / 2).toPoint());
  }
  drag->exec(Qt::CopyAction);
}

QMimeData* Sharing::mimeData(const SharedItem& item) {
  auto* data = new QMimeData;
  data->setData(item.mediaType, item.bytes); // first, for many programs take the first they know
  if (item.preview) {
    if (const auto bitmap = item.preview->bitmap()) data->setImageData(host::qImage(*bitmap));
  }
  if (const QString path = temporaryFile(item); !path.isEmpty()) {
    const QUrl url = QUrl::fromLocalFile(path);
    data->setUrls({url});
    data->setData(QStringLiteral("x-special/gnome-copied-files"), "copy\n" + url.toEncoded());
  }
  return data;
}

QString Sharing::temporaryFile(const SharedItem& item) {
  if (item == copied_ && QFile::exists(copyPath_)) return copyPath_;
  if (temporary_ == nullptr) {
    temporary_ = std::make_unique<QTemporaryDir>(QDir::temp().filePath(QStringLiteral("vitrelle")));
  }
  // A folder for each, so that every one has its own name.
  const QDir folder(temporary_->filePath(QString::number(++copies_)));
  const QString path = folder.filePath(item.fileName);
  QFile file(path);
  if (!temporary_->isValid() || !folder.mkpath(QStringLiteral(".")) ||
      !file.open(QIODevice::WriteOnly) || file.write(item.bytes) < 0 || !file.flush()) {
    return {};
  }
  copied_ = item;
  copyPath_ = path;
  return path;
}

} // namespace vitrelle::ui
