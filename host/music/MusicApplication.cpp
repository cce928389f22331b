#include "host/music/MusicApplication.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#include <map>
#include <vector>

namespace vitrelle::host {

namespace {

const QString applications = QStringLiteral("/applications/");
const QStringList kinds{QStringLiteral("audio/mpeg"), QStringLiteral("audio/x-vorbis+ogg"),
                        QStringLiteral("audio/flac")};
constexpr qint64 mostBytes = qint64{4} << 20; // an index of many applications has a few hundred KB

/// The lines of one group of such a file; later ones of a key do not count.
std::map<QString, QString> groupIn(const QString& path, const QString& group) {
  std::map<QString, QString> lines;
  QFile file(path);
  if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) return lines;
  bool isInside = false;
  const QStringList all =
      QString::fromUtf8(file.read(mostBytes)).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
  for (const QString& line : all) {
    if (line.startsWith(QLatin1Char('['))) {
      isInside = line.trimmed() == QLatin1Char('[') + group + QLatin1Char(']');
    } else if (const qsizetype equals = line.indexOf(QLatin1Char('=')); isInside && equals > 0) {
      lines.try_emplace(line.left(equals).trimmed(), line.mid(equals + 1).trimmed());
    }
  }
  return lines;
}

QString value(const std::map<QString, QString>& lines, const char* key) {
  const auto found = lines.find(QLatin1String(key));
  return found == lines.end() ? QString() : found->second;
}

/// The command without the places where names of files, icons and the like would go.
QStringList wordsOf(const QString& command) {
  QStringList words;
  for (QString word : QProcess::splitCommand(command)) {
    if (word.size() == 2 && word.startsWith(QLatin1Char('%')) && word != QStringLiteral("%%"))
      continue;
    words += word.replace(QStringLiteral("%%"), QStringLiteral("%"));
  }
  return words;
}

std::optional<QStringList> commandOf(const QString& desktopFile) {
  const auto entry = groupIn(desktopFile, QStringLiteral("Desktop Entry"));
  const bool isShown = value(entry, "Hidden") != QStringLiteral("true") &&
                       value(entry, "Terminal") != QStringLiteral("true");
  const QStringList words = wordsOf(value(entry, "Exec"));
  if (!isShown || words.isEmpty()) return std::nullopt;
  if (QStandardPaths::findExecutable(words.first()).isEmpty()) return std::nullopt;
  return words;
}

/// Of an application by its name, such as "player.desktop".
std::optional<QStringList> commandNamed(const QString& name, const ApplicationFolders& folders) {
  if (name.contains(QLatin1Char('/'))) return std::nullopt;
  for (const QString& folder : folders.data) {
    const QString file = folder + applications + name;
    if (QFile::exists(file)) return commandOf(file);
  }
  return std::nullopt;
}

} // namespace

ApplicationFolders ApplicationFolders::ofSession() {
  return {.settings = QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation),
          .data = QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation)};
}

std::optional<QStringList> musicCommand(const ApplicationFolders& folders) {
  struct List {
    QString file;
    QString group;
  };
  std::vector<List> lists;
  for (const QString& folder : folders.settings)
    lists.push_back(
        {folder + QStringLiteral("/mimeapps.list"), QStringLiteral("Default Applications")});
  for (const QString& folder : folders.data)
    lists.push_back({folder + applications + QStringLiteral("mimeapps.list"),
                     QStringLiteral("Default Applications")});
  for (const QString& folder : folders.data)
    lists.push_back(
        {folder + applications + QStringLiteral("mimeinfo.cache"), QStringLiteral("MIME Cache")});
  for (const List& list : lists) {
    const auto lines = groupIn(list.file, list.group);
    for (const QString& kind : kinds) {
      const auto found = lines.find(kind);
      if (found == lines.end()) continue;
      for (const QString& name : found->second.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        if (auto command = commandNamed(name, folders)) return command;
      }
    }
  }
  return std::nullopt;
}

bool openMusicApplication() {
  const std::optional<QStringList> command = musicCommand(ApplicationFolders::ofSession());
  if (!command) return false;
  return QProcess::startDetached(command->first(), command->mid(1), QDir::homePath());
}

} // namespace vitrelle::host
