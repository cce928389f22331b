// A stand-in for the desktop's portal, which chooses what it is told.
#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QObject>
#include <QVariantMap>

namespace vitrelle::test {

inline const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
inline const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");

/// How the stand-in takes the call.
enum class Manner { asItShould, fails, keepsSilent, choosesThePath };

class Portal : public QObject, protected QDBusContext {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.FileChooser")

 public:
  explicit Portal(const QDBusConnection& bus) : bus_(bus) {}

  void answer(uint response, const QStringList& files) {
    QDBusMessage signal = QDBusMessage::createSignal(
        path, QStringLiteral("org.freedesktop.portal.Request"), QStringLiteral("Response"));
    bus_.send(signal << response << QVariantMap{{QStringLiteral("uris"), files}});
  }

  Manner manner = Manner::asItShould;
  QString method; ///< that was called
  QString path;   ///< of the open request
  QString parent;
  QString title;
  QVariantMap options;

 public Q_SLOTS:
  Q_SCRIPTABLE QDBusObjectPath OpenFile(const QString& window, const QString& words,
                                        const QVariantMap& told) {
    return take(QStringLiteral("OpenFile"), window, words, told);
  }
  Q_SCRIPTABLE QDBusObjectPath SaveFile(const QString& window, const QString& words,
                                        const QVariantMap& told) {
    return take(QStringLiteral("SaveFile"), window, words, told);
  }

 private:
  QDBusObjectPath take(const QString& called, const QString& window, const QString& words,
                       const QVariantMap& told) {
    method = called;
    parent = window;
    title = words;
    options = told;
    path = portalPath + QStringLiteral("/request/") +
           message().service().mid(1).replace(u'.', u'_') + u'/' +
           told.value(QStringLiteral("handle_token")).toString();
    if (manner == Manner::choosesThePath) path = portalPath + QStringLiteral("/request/t/old");
    if (manner == Manner::fails) sendErrorReply(QDBusError::Failed, QStringLiteral("no backend"));
    if (manner == Manner::keepsSilent) setDelayedReply(true);
    return QDBusObjectPath(path);
  }

  QDBusConnection bus_;
};

class Request : public QObject {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Request")

 public:
  int closed = 0;

 public Q_SLOTS:
  Q_SCRIPTABLE void Close() { ++closed; }
};

} // namespace vitrelle::test
