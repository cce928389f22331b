// The pictures and folders of one folder as a QML model that follows the folder's changes: folders
// by name, then pictures, the newest first.
#pragma once

#include <QAbstractListModel>
#include <QFileSystemWatcher>
#include <QStringList>
#include <QTimer>
#include <QUrl>
#include <QtQmlIntegration>

#include <cstdint>
#include <vector>

namespace vitrelle::ui {

struct FolderEntry {
  QString name;
  bool isFolder = false;
  std::int64_t changed = 0; ///< of a picture, nanoseconds since 1970; of a folder 0
  std::int64_t bytes = 0;
  bool operator==(const FolderEntry&) const = default;
};

enum class FolderState { loading, ready, unreadable, gone };

/// A folder as it was read.
struct Listing {
  FolderState state = FolderState::ready;
  std::vector<FolderEntry> entries;
};

/// The rows of the model, in their order.
class PictureRows : public QAbstractListModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("a folder has it")

 public:
  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QHash<int, QByteArray> roleNames() const override;

  const std::vector<FolderEntry>& entries() const { return entries_; }
  /// Makes the rows those of the folder, which are in their order; whether they were others.
  bool merge(const QString& folder, const std::vector<FolderEntry>& entries);

 private:
  QString folder_;
  std::vector<FolderEntry> entries_;
};

class PictureFolder : public QObject {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QString path READ path WRITE show NOTIFY pathChanged)
  /// The folders on the way to this one as paths, this one last: the file system's root, the
  /// user's home in the place of what leads there, and what follows.
  Q_PROPERTY(QStringList trail READ trail NOTIFY pathChanged)
  /// The last but one of them; empty at the root.
  Q_PROPERTY(QString above READ above NOTIFY pathChanged)
  Q_PROPERTY(QString home READ home CONSTANT)
  /// Why there is nothing to choose from; empty where there is something, and while it is looked.
  Q_PROPERTY(QString message READ message NOTIFY stateChanged)
  Q_PROPERTY(vitrelle::ui::PictureRows* rows READ rows CONSTANT)

 public:
  explicit PictureFolder(QObject* parent = nullptr);

  const QString& path() const { return path_; }
  void show(const QString& path);
  QStringList trail() const;
  QString above() const { return trail().value(trail().size() - 2); }
  static QString home();
  FolderState state() const { return state_; }
  QString message() const;
  PictureRows* rows() { return &rows_; }

  Q_INVOKABLE static QUrl urlOf(const QString& path) { return QUrl::fromLocalFile(path); }
  /// The first entry whose name begins so, from a row on and then from the top; -1 if none does.
  Q_INVOKABLE int find(const QString& beginning, int from) const;
  /// The name in a folder above this one that leads here; empty when that one is not above.
  Q_INVOKABLE QString nameIn(const QString& above) const;

 Q_SIGNALS:
  void pathChanged();
  void stateChanged();
  /// Once for each folder that is shown: its first entries are there.
  void loaded();

 private:
  /// Reads the folder on another thread, for it may lie on a slow disk.
  void list();
  void take(int request, const Listing& listing);

  QString path_;
  FolderState state_ = FolderState::loading;
  PictureRows rows_;
  QFileSystemWatcher watcher_;
  QTimer again_;
  int request_ = 0; ///< the last; answers to earlier ones are dropped
};

/// Where choosing begins: the folder that is remembered, else that of the user's pictures, else
/// the home; the first of them that is there.
QString firstPictureFolder(const QString& remembered);

} // namespace vitrelle::ui
