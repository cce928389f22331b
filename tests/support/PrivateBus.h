// A message bus of its own, for stand-ins of the desktop's services.
#pragma once

#include <QDBusConnection>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <utility>

namespace vitrelle::test {

class PrivateBus final {
 public:
  PrivateBus() {
    EXPECT_TRUE(QDir(folder_.path()).mkdir(QStringLiteral("services")));
    QFile settings(folder_.filePath(QStringLiteral("bus.conf")));
    EXPECT_TRUE(settings.open(QIODevice::WriteOnly));
    // Only what a test puts there can be started on it: the machine's own services stay away.
    settings.write("<busconfig><type>session</type><listen>unix:dir=" + folder_.path().toUtf8() +
                   "</listen><servicedir>" + servicesFolder().toUtf8() +
                   "</servicedir><policy context='default'><allow send_destination='*'/>"
                   "<allow receive_sender='*'/><allow own='*'/></policy></busconfig>");
    settings.close();
    daemon_.start(QStringLiteral("dbus-daemon"),
                  {QStringLiteral("--nofork"), QStringLiteral("--print-address"),
                   QStringLiteral("--config-file"), settings.fileName()});
    EXPECT_TRUE(daemon_.waitForReadyRead()) << "dbus-daemon says nothing";
    address_ = QString::fromUtf8(daemon_.readLine()).trimmed();
  }
  ~PrivateBus() {
    for (const QString& name : std::as_const(names_))
      QDBusConnection::disconnectFromBus(name);
    daemon_.kill();
    daemon_.waitForFinished();
  }
  PrivateBus(const PrivateBus&) = delete;
  PrivateBus& operator=(const PrivateBus&) = delete;

  /// A connection of its own for each name.
  QDBusConnection connect(const QString& name) {
    names_ += name;
    return QDBusConnection::connectToBus(address_, name);
  }
  QString address() const { return address_; }
  /// It then takes no more messages, though it stays there.
  void suspend() const { kill(static_cast<pid_t>(daemon_.processId()), SIGSTOP); }
  void resume() const { kill(static_cast<pid_t>(daemon_.processId()), SIGCONT); }
  QString servicesFolder() const { return folder_.filePath(QStringLiteral("services")); }

 private:
  QTemporaryDir folder_;
  QProcess daemon_;
  QString address_;
  QStringList names_;
};

} // namespace vitrelle::test
