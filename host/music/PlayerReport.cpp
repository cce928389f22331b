#include "host/music/PlayerReport.h"

#include <QDBusArgument>
#include <QFileInfo>
#include <QUrl>

namespace vitrelle::host {

namespace {

std::int64_t stateNamed(const QString& name) {
  if (name == QStringLiteral("Playing")) return playback::playing;
  if (name == QStringLiteral("Paused")) return playback::paused;
  return playback::stopped;
}

/// A list of names, or one alone, as some players tell it.
QString words(const QVariant& value) {
  const bool isWords =
      value.typeId() == QMetaType::QStringList || value.typeId() == QMetaType::QString;
  QStringList names = isWords ? value.toStringList() : QStringList();
  names.removeAll(QString());
  return names.join(QStringLiteral(", "));
}

std::optional<std::string> text(const QVariantMap& metadata, const char* key) {
  const QString told = words(metadata.value(QLatin1String(key)));
  if (told.trimmed().isEmpty()) return std::nullopt;
  return told.toStdString();
}

/// Of a file without a title: its name.
std::optional<std::string> fileName(const QVariantMap& metadata) {
  const QUrl address(words(metadata.value(QStringLiteral("xesam:url"))));
  const QString name = QFileInfo(address.toLocalFile()).completeBaseName();
  if (name.isEmpty()) return std::nullopt;
  return name.toStdString();
}

/// Empty where it is anything else than names with values.
QVariantMap mapIn(const QVariant& value) {
  if (value.metaType() != QMetaType::fromType<QDBusArgument>()) return value.toMap();
  const auto argument = value.value<QDBusArgument>();
  if (argument.currentSignature() != QStringLiteral("a{sv}")) return {};
  return qdbus_cast<QVariantMap>(argument);
}

} // namespace

void PlayerReport::take(const QVariantMap& properties) {
  const auto status = properties.constFind(QStringLiteral("PlaybackStatus"));
  if (status != properties.cend()) state = stateNamed(status->toString());
  const auto told = properties.constFind(QStringLiteral("Metadata"));
  if (told == properties.cend()) return;
  const QVariantMap metadata = mapIn(*told);
  title = text(metadata, "xesam:title");
  if (!title) title = fileName(metadata);
  albumTitle = text(metadata, "xesam:album");
  artist = text(metadata, "xesam:artist");
  artwork = words(metadata.value(QStringLiteral("mpris:artUrl")));
}

} // namespace vitrelle::host
