#include "ui/pickers/PictureFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QPointer>
#include <QStandardPaths>
#include <QThreadPool>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <limits>
#include <utility>

#include <sys/stat.h>
#include <unistd.h>

namespace vitrelle::ui {

namespace {

namespace fs = std::filesystem;

enum Role { nameRole = Qt::UserRole, pathRole, isFolderRole, revisionRole };

/// Milliseconds. Changes come in bursts; and what is still being written into a file is not told,
/// so after each change the folder is read again until it has come to rest.
constexpr int burst = 100;
constexpr int rest = 1000;

bool isPictureName(const QString& name) {
  static constexpr const char* endings[] = {".png", ".jpg", ".jpeg", ".heic", ".heif"};
  return std::ranges::any_of(endings, [&](const char* ending) {
    return name.endsWith(QLatin1String(ending), Qt::CaseInsensitive);
  });
}

/// The order of the rows. No two entries of a folder are equal in it.
bool before(const FolderEntry& a, const FolderEntry& b) {
  if (a.isFolder != b.isFolder) return a.isFolder;
  if (a.changed != b.changed) return a.changed > b.changed;
  const int order = a.name.compare(b.name, Qt::CaseInsensitive);
  return order != 0 ? order < 0 : a.name < b.name;
}

Listing readFolder(const QString& path) {
  const fs::path folder = QFile::encodeName(path).toStdString();
  Listing listing;
  const auto fail = [](int error) {
    return Listing{error == ENOENT ? FolderState::gone : FolderState::unreadable, {}};
  };
  if (access(folder.c_str(), R_OK | X_OK) != 0) return fail(errno);
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error)) {
    const QString name = QFile::decodeName(entry->path().filename().c_str());
    struct stat status {};
    if (name.startsWith(u'.') || stat(entry->path().c_str(), &status) != 0) continue;
    if (S_ISDIR(status.st_mode)) {
      listing.entries.push_back({.name = name, .isFolder = true});
    } else if (S_ISREG(status.st_mode) && isPictureName(name)) {
      constexpr std::int64_t second = 1'000'000'000;
      constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max() / second - 1;
      const auto seconds = std::clamp<std::int64_t>(status.st_mtim.tv_sec, -most, most);
      listing.entries.push_back({.name = name,
                                 .changed = seconds * second + status.st_mtim.tv_nsec,
                                 .bytes = status.st_size});
    }
  }
  if (error) return fail(error.value());
  std::ranges::sort(listing.entries, before);
  return listing;
}

QString parentOf(const QString& path) {
  return QFileInfo(path).path();
}

/// The folder, or the nearest above it that is there: in it the folder would come back.
QString nearestThere(QString path) {
  while (!QFile::exists(path) && path != QStringLiteral("/"))
    path = parentOf(path);
  return path;
}

} // namespace

int PictureRows::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(entries_.size());
}

QVariant PictureRows::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= rowCount()) return {};
  const FolderEntry& entry = entries_[static_cast<std::size_t>(index.row())];
  switch (role) {
  case nameRole:
    return entry.name;
  case pathRole:
    return QDir(folder_).filePath(entry.name);
  case isFolderRole:
    return entry.isFolder;
  case revisionRole: // of the picture, another one when it was written into
    return static_cast<int>(qHashMulti(0, entry.changed, entry.bytes));
  default:
    return {};
  }
}

QHash<int, QByteArray> PictureRows::roleNames() const {
  return {{nameRole, "name"},
          {pathRole, "path"},
          {isFolderRole, "isFolder"},
          {revisionRole, "revision"}};
}

bool PictureRows::merge(const QString& folder, const std::vector<FolderEntry>& entries) {
  folder_ = folder;
  // Both are in the same order, so one pass finds the runs of rows that went and that came, and
  // what stays keeps its place on the screen.
  const auto run = [](const auto& from, std::size_t start, const auto& to, std::size_t limit) {
    std::size_t end = start;
    while (end < from.size() && (limit == to.size() || before(from[end], to[limit])))
      ++end;
    return static_cast<std::ptrdiff_t>(end - start);
  };
  bool changed = false;
  std::size_t row = 0;
  std::size_t next = 0;
  while (row < entries_.size() || next < entries.size()) {
    const int first = static_cast<int>(row);
    const auto place = entries_.begin() + first;
    if (const auto gone = run(entries_, row, entries, next); gone > 0) {
      beginRemoveRows({}, first, first + static_cast<int>(gone) - 1);
      entries_.erase(place, place + gone);
      endRemoveRows();
      changed = true;
    } else if (const auto come = run(entries, next, entries_, row); come > 0) {
      const auto source = entries.begin() + static_cast<std::ptrdiff_t>(next);
      beginInsertRows({}, first, first + static_cast<int>(come) - 1);
      entries_.insert(place, source, source + come);
      endInsertRows();
      row += static_cast<std::size_t>(come);
      next += static_cast<std::size_t>(come);
      changed = true;
    } else {
      if (entries_[row] != entries[next]) { // its size
        entries_[row] = entries[next];
        Q_EMIT dataChanged(index(first), index(first));
        changed = true;
      }
      ++row;
      ++next;
    }
  }
  return changed;
}

PictureFolder::PictureFolder(QObject* parent) : QObject(parent) {
  again_.setSingleShot(true);
  again_.callOnTimeout(this, &PictureFolder::list);
  connect(&watcher_, &QFileSystemWatcher::directoryChanged, this, [this] {
    if (!again_.isActive() || again_.remainingTime() > burst) again_.start(burst);
  });
}

void PictureFolder::show(const QString& path) {
  const QString clean = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
  if (clean == path_) return;
  path_ = clean;
  again_.stop();
  rows_.merge(path_, {});
  state_ = FolderState::loading;
  Q_EMIT stateChanged();
  Q_EMIT pathChanged();
  list();
}

QString PictureFolder::home() {
  return QDir::homePath();
}

QStringList PictureFolder::trail() const {
  if (path_.isEmpty()) return {};
  QStringList paths{path_};
  while (paths.constFirst() != QStringLiteral("/"))
    paths.prepend(paths.constFirst() == home() ? QStringLiteral("/")
                                               : parentOf(paths.constFirst()));
  return paths;
}

int PictureFolder::find(const QString& beginning, int from) const {
  const int count = rows_.rowCount();
  for (int i = 0; i < count; ++i) {
    const int row = (from + i) % count;
    const QString& name = rows_.entries()[static_cast<std::size_t>(row)].name;
    if (name.startsWith(beginning, Qt::CaseInsensitive)) return row;
  }
  return -1;
}

QString PictureFolder::message() const {
  switch (state_) {
  case FolderState::unreadable:
    return qtTrId("app.picker.unreadable");
  case FolderState::gone:
    return qtTrId("app.picker.gone");
  case FolderState::ready:
    return rows_.entries().empty() ? qtTrId("app.picker.empty") : QString();
  case FolderState::loading:
    break;
  }
  return {};
}

QString PictureFolder::nameIn(const QString& above) const {
  const QString folder = above.endsWith(u'/') ? above : above + u'/';
  return path_.startsWith(folder) ? path_.mid(folder.size()).section(u'/', 0, 0) : QString();
}

void PictureFolder::list() {
  const QString watched = nearestThere(path_);
  if (watcher_.directories() != QStringList{watched}) {
    if (!watcher_.directories().isEmpty()) watcher_.removePaths(watcher_.directories());
    watcher_.addPath(watched); // before it is read, so that no change is missed
  }
  QThreadPool::globalInstance()->start([self = QPointer(this), request = ++request_, path = path_] {
    QMetaObject::invokeMethod(
        QCoreApplication::instance(),
        [self, request, listing = readFolder(path)] {
          if (self) self->take(request, listing);
        },
        Qt::QueuedConnection);
  });
}

void PictureFolder::take(int request, const Listing& listing) {
  if (request != request_) return;
  if (rows_.merge(path_, listing.entries)) again_.start(rest);
  const bool first = std::exchange(state_, listing.state) == FolderState::loading;
  Q_EMIT stateChanged();
  if (first) Q_EMIT loaded();
}

QString firstPictureFolder(const QString& remembered) {
  for (const QString& folder :
       {remembered, QStandardPaths::writableLocation(QStandardPaths::PicturesLocation)}) {
    if (!folder.isEmpty() && QFileInfo(folder).isDir()) return folder;
  }
  return QDir::homePath();
}

} // namespace vitrelle::ui
