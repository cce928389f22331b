// A stand-in for the desktop's location service. It answers from a thread of its own, since whoever
// asks may be waiting.
#pragma once

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QThread>
#include <QVariantMap>

#include <gtest/gtest.h>

#include <limits>
#include <mutex>
#include <utility>

namespace vitrelle::test {

inline const QString locationService = QStringLiteral("org.freedesktop.GeoClue2");

class FakeGeoClue final : public QDBusVirtualObject {
 public:
  explicit FakeGeoClue(QDBusConnection bus) : bus_(std::move(bus)) {
    qDBusRegisterMetaType<Timestamp>();
    EXPECT_TRUE(bus_.registerVirtualObject(root, this, QDBusConnection::SubPath));
    moveToThread(&thread_);
    thread_.start();
  }
  ~FakeGeoClue() override {
    stop();
    bus_.unregisterObject(root);
    thread_.quit();
    thread_.wait();
  }

  void start() { EXPECT_TRUE(bus_.registerService(locationService)); }
  void stop() { bus_.unregisterService(locationService); }

  /// Says that the device is there, if anybody has asked to hear it.
  void move(double latitude, double longitude) {
    const std::lock_guard<std::mutex> lock(mutex_);
    place_ = {{QStringLiteral("Latitude"), latitude},
              {QStringLiteral("Longitude"), longitude},
              {QStringLiteral("Accuracy"), 100.0},
              {QStringLiteral("Timestamp"), QVariant::fromValue(Timestamp(1'795'000'000, 0))},
              {QStringLiteral("Altitude"), -std::numeric_limits<double>::max()},
              {QStringLiteral("Speed"), -1.0},
              {QStringLiteral("Heading"), -1.0},
              {QStringLiteral("Description"), QString()}};
    if (started_) tell();
  }
  void beSilent() {
    const std::lock_guard<std::mutex> lock(mutex_);
    silent_ = true;
  }
  bool isStarted() const {
    const std::lock_guard<std::mutex> lock(mutex_);
    return started_;
  }
  QVariantMap clientProperties() const {
    const std::lock_guard<std::mutex> lock(mutex_);
    return client_;
  }

  QString introspect(const QString&) const override { return {}; }
  bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
    const std::lock_guard<std::mutex> lock(mutex_);
    const QString member = message.member();
    if (silent_) {
      message.setDelayedReply(true);
    } else if (member == QStringLiteral("GetClient") || member == QStringLiteral("CreateClient")) {
      bus.send(message.createReply(QVariant::fromValue(QDBusObjectPath(client))));
    } else if (member == QStringLiteral("Set")) {
      const QVariantList told = message.arguments();
      client_[told.at(1).toString()] = told.at(2).value<QDBusVariant>().variant();
      bus.send(message.createReply());
    } else if (member == QStringLiteral("Get")) {
      const QVariantMap& from = propertiesOf(message.path());
      bus.send(message.createReply(
          QVariant::fromValue(QDBusVariant(from.value(message.arguments().at(1).toString())))));
    } else if (member == QStringLiteral("GetAll")) {
      bus.send(message.createReply(propertiesOf(message.path())));
    } else if (member == QStringLiteral("Start") || member == QStringLiteral("Stop")) {
      started_ = member == QStringLiteral("Start");
      bus.send(message.createReply());
      if (started_ && !place_.isEmpty()) tell();
    } else {
      bus.send(message.createReply());
    }
    return true;
  }

 private:
  using Timestamp = std::pair<quint64, quint64>; // seconds and microseconds

  void tell() {
    client_[QStringLiteral("Location")] = QVariant::fromValue(QDBusObjectPath(place(told_ + 1)));
    const QString before = ++told_ == 1 ? QStringLiteral("/") : place(told_ - 1);
    bus_.send(QDBusMessage::createSignal(client, locationService + QStringLiteral(".Client"),
                                         QStringLiteral("LocationUpdated"))
              << QVariant::fromValue(QDBusObjectPath(before))
              << QVariant::fromValue(QDBusObjectPath(place(told_))));
  }
  const QVariantMap& propertiesOf(const QString& path) const {
    return path == client ? client_ : path == manager ? manager_ : place_;
  }
  static QString place(int number) {
    return root + QStringLiteral("/Location/") + QString::number(number);
  }

  inline static const QString root = QStringLiteral("/org/freedesktop/GeoClue2");
  inline static const QString manager = root + QStringLiteral("/Manager");
  inline static const QString client = root + QStringLiteral("/Client/1");

  QDBusConnection bus_;
  QThread thread_;
  mutable std::mutex mutex_;
  QVariantMap manager_{{QStringLiteral("InUse"), false},
                       {QStringLiteral("AvailableAccuracyLevel"), 8U}};
  QVariantMap client_{{QStringLiteral("Active"), false},
                      {QStringLiteral("Location"), QVariant::fromValue(QDBusObjectPath("/"))},
                      {QStringLiteral("DesktopId"), QString()},
                      {QStringLiteral("DistanceThreshold"), 0U},
                      {QStringLiteral("RequestedAccuracyLevel"), 0U},
                      {QStringLiteral("TimeThreshold"), 0U}};
  QVariantMap place_;
  int told_ = 0;
  bool started_ = false;
  bool silent_ = false;
};

} // namespace vitrelle::test
