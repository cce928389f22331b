// A stand-in for the desktop's power service. It answers from a thread of its own, since whoever
// asks may be waiting.
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QThread>
#include <QVariantMap>

#include <gtest/gtest.h>

#include <mutex>
#include <utility>

namespace vitrelle::test {

inline const QString powerService = QStringLiteral("org.freedesktop.UPower");

class FakePower final : public QDBusVirtualObject {
 public:
  explicit FakePower(QDBusConnection bus) : bus_(std::move(bus)) {
    moveToThread(&thread_);
    thread_.start();
    bus_.registerVirtualObject(path, this);
  }
  ~FakePower() override {
    stop();
    bus_.unregisterObject(path);
    thread_.quit();
    thread_.wait();
  }

  void start() { EXPECT_TRUE(bus_.registerService(powerService)); }
  void stop() { bus_.unregisterService(powerService); }

  /// Says that it has changed, as the service does.
  void set(const QVariantMap& changed) {
    put(changed);
    bus_.send(QDBusMessage::createSignal(path, properties, QStringLiteral("PropertiesChanged"))
              << device << changed << QStringList());
  }
  void put(const QVariantMap& changed) {
    const std::lock_guard<std::mutex> lock(mutex_);
    state_.insert(changed);
  }
  void beSilent(bool silent) {
    const std::lock_guard<std::mutex> lock(mutex_);
    silent_ = silent;
  }
  int questions() const {
    const std::lock_guard<std::mutex> lock(mutex_);
    return questions_;
  }

  QString introspect(const QString&) const override { return {}; }
  bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
    const std::lock_guard<std::mutex> lock(mutex_);
    ++questions_;
    if (silent_) {
      message.setDelayedReply(true);
    } else if (message.interface() == properties && message.member() == QStringLiteral("GetAll") &&
               message.arguments() == QVariantList{device}) {
      bus.send(message.createReply(state_));
    } else {
      bus.send(message.createErrorReply(QDBusError::UnknownMethod, message.member()));
    }
    return true;
  }

 private:
  inline static const QString path =
      QStringLiteral("/org/freedesktop/UPower/devices/DisplayDevice");
  inline static const QString device = QStringLiteral("org.freedesktop.UPower.Device");
  inline static const QString properties = QStringLiteral("org.freedesktop.DBus.Properties");

  QDBusConnection bus_;
  QThread thread_;
  mutable std::mutex mutex_;
  QVariantMap state_{{QStringLiteral("Type"), 2U},
                     {QStringLiteral("IsPresent"), true},
                     {QStringLiteral("Percentage"), 73.0}};
  bool silent_ = false;
  int questions_ = 0;
};

} // namespace vitrelle::test
