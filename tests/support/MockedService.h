// A service of the desktop's as another library speaks D-Bus: python3-dbusmock in a process of its
// own. What both sides of a stand-in of ours take for granted shows only here.
#pragma once

#include "tests/support/PrivateBus.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTest>
#include <QVariantList>

#include <gtest/gtest.h>

#include <utility>

namespace vitrelle::test {

/// What is mocked.
struct MockedKind {
  QString name;
  QString path;    ///< of its main object
  QString pattern; ///< a template of the package's, or a file that is one
};

class MockedService final {
 public:
  /// Looked for rather than loaded: one that is installed but does not work is a failure.
  static bool isInstalled() {
    return QProcess::execute(python, {QStringLiteral("-c"),
                                      QStringLiteral("import importlib.util as u, sys\n"
                                                     "sys.exit(not u.find_spec('dbusmock'))")}) ==
           0;
  }

  /// It is on the bus when this returns.
  MockedService(PrivateBus& bus, MockedKind kind)
      : bus_(bus.connect(QStringLiteral("of the mocked"))), kind_(std::move(kind)) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DBUS_SYSTEM_BUS_ADDRESS"), bus.address());
    process_.setProcessEnvironment(environment);
    process_.setStandardOutputFile(QProcess::nullDevice()); // a line for each call
    process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process_.start(python,
                   {QStringLiteral("-m"), QStringLiteral("dbusmock"), QStringLiteral("--system"),
                    QStringLiteral("--template"), kind_.pattern});
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return bus_.interface()->isServiceRegistered(kind_.name); }, 30000))
        << "it does not start";
  }
  ~MockedService() { end(); }
  MockedService(const MockedService&) = delete;
  MockedService& operator=(const MockedService&) = delete;

  /// Has it do something that only tests ask of it.
  void tell(const QString& method, const QVariantList& arguments) const {
    QDBusMessage message = QDBusMessage::createMethodCall(
        kind_.name, kind_.path, QStringLiteral("org.freedesktop.DBus.Mock"), method);
    message.setArguments(arguments);
    const QDBusMessage reply = bus_.call(message);
    EXPECT_EQ(reply.type(), QDBusMessage::ReplyMessage) << reply.errorMessage().toStdString();
  }
  /// As one that crashes does.
  void end() {
    process_.kill();
    process_.waitForFinished();
  }

 private:
  inline static const QString python = QStringLiteral("/usr/bin/python3"); // Debian's own

  QDBusConnection bus_;
  MockedKind kind_;
  QProcess process_;
};

} // namespace vitrelle::test
