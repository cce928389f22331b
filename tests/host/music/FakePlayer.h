// A stand-in for a music player on the bus. It answers from a thread of its own, as others do.
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

/// As players tell it: "xesam:title" and the like.
inline QVariantMap metadata(const char* title, const char* artist = "Satie",
                            const QString& artwork = {}) {
  QVariantMap told{{QStringLiteral("xesam:title"), QString::fromUtf8(title)},
                   {QStringLiteral("xesam:artist"), QStringList{QString::fromUtf8(artist)}}};
  if (!artwork.isEmpty()) told.insert(QStringLiteral("mpris:artUrl"), artwork);
  return told;
}

inline QVariantMap playing(const QVariantMap& metadata) {
  return {{QStringLiteral("PlaybackStatus"), QStringLiteral("Playing")},
          {QStringLiteral("Metadata"), metadata}};
}

class FakePlayer final : public QDBusVirtualObject {
 public:
  explicit FakePlayer(QDBusConnection bus) : bus_(std::move(bus)) {
    moveToThread(&thread_);
    thread_.start();
    bus_.registerVirtualObject(path, this);
  }
  ~FakePlayer() override {
    for (const QString& name : std::as_const(names_))
      bus_.unregisterService(name);
    bus_.unregisterObject(path);
    thread_.quit();
    thread_.wait();
  }

  void start(const QString& name) {
    names_ += prefix + name;
    EXPECT_TRUE(bus_.registerService(prefix + name));
  }
  void stop(const QString& name) { bus_.unregisterService(prefix + name); }
  /// Says that it has changed.
  void set(const QVariantMap& changed) {
    put(changed);
    say({player, changed, QStringList()});
  }
  /// Says so without saying to what.
  void change(const QVariantMap& changed) {
    put(changed);
    say({player, QVariantMap(), QStringList(changed.keys())});
  }
  void say(const QVariantList& arguments) {
    QDBusMessage signal =
        QDBusMessage::createSignal(path, properties, QStringLiteral("PropertiesChanged"));
    signal.setArguments(arguments);
    bus_.send(signal);
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
    } else if (message.arguments() == QVariantList{player}) {
      bus.send(message.createReply(state_));
    } else {
      bus.send(message.createErrorReply(QDBusError::UnknownMethod, message.member()));
    }
    return true;
  }

  inline static const QString player = QStringLiteral("org.mpris.MediaPlayer2.Player");

 private:
  inline static const QString prefix = QStringLiteral("org.mpris.MediaPlayer2.");
  inline static const QString path = QStringLiteral("/org/mpris/MediaPlayer2");
  inline static const QString properties = QStringLiteral("org.freedesktop.DBus.Properties");

  QDBusConnection bus_;
  QThread thread_;
  QStringList names_;
  mutable std::mutex mutex_;
  QVariantMap state_;
  bool silent_ = false;
  int questions_ = 0;
};

} // namespace vitrelle::test
