#include "host/location/DesktopPositions.h"

#include "host/desktop/MainCalls.h"

#include <QDBusMessage>
#include <QDBusPendingReply>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QGeoPositionInfo>
#include <QGeoPositionInfoSource>
#include <QLoggingCategory>
#include <QStringList>
#include <QThread>
#include <QVariantMap>

#include <cmath>
#include <memory>
#include <utility>

namespace vitrelle::host {

namespace {

const QString service = QStringLiteral("org.freedesktop.GeoClue2");

QDBusMessage toBus(const QString& member) {
  const QString bus = QStringLiteral("org.freedesktop.DBus");
  return QDBusMessage::createMethodCall(bus, QStringLiteral("/org/freedesktop/DBus"), bus, member);
}

/// What runs on the thread, until that is told to quit.
void follow(const std::function<void(const Coordinate&)>& onPosition) {
  // A service that refuses is no trouble of the program's; QT_LOGGING_RULES can still have it told.
  QLoggingCategory::setFilterRules(QStringLiteral("qt.positioning.*=false"));
  // The name of the desktop entry, by which the service asks and remembers whether it may tell.
  const std::unique_ptr<QGeoPositionInfoSource> source(QGeoPositionInfoSource::createSource(
      QStringLiteral("geoclue2"), {{QStringLiteral("desktopId"), QStringLiteral("vitrelle")}},
      nullptr));
  if (source == nullptr) return;
  Coordinate last{HUGE_VAL, 0};
  const auto take = [&](const QGeoPositionInfo& update) {
    const QGeoCoordinate place = update.coordinate();
    if (!place.isValid()) return;
    // The first one comes twice.
    const Coordinate told{place.latitude(), place.longitude()};
    if (std::exchange(last, told) != told) onPosition(told);
  };
  QObject::connect(source.get(), &QGeoPositionInfoSource::positionUpdated, source.get(), take);
  source->setPreferredPositioningMethods(QGeoPositionInfoSource::AllPositioningMethods);
  source->startUpdates();
  QEventLoop().exec();
  source->stopUpdates();
}

class Follower final {
 public:
  Follower(const EventLoop& loop, std::function<void(const Coordinate&)> onPosition)
      : calls_(loop),
        onPosition_(
            std::make_shared<std::function<void(const Coordinate&)>>(std::move(onPosition))),
        thread_(QThread::create([post = calls_.poster(), weak = std::weak_ptr(onPosition_)] {
          follow([&](const Coordinate& position) {
            post([weak, position] {
              if (const auto call = weak.lock()) (*call)(position);
            });
          });
        })) {
    thread_->start();
  }
  ~Follower() {
    thread_->quit();
    if (thread_->wait(QDeadlineTimer(patience))) return;
    // One that hangs in a call of the service is left to itself, and ends when that gives up.
    QThread* left = thread_.release();
    QObject::connect(left, &QThread::finished, left, &QObject::deleteLater);
    if (left->isFinished()) left->deleteLater();
  }
  Follower(const Follower&) = delete;
  Follower& operator=(const Follower&) = delete;

 private:
  static constexpr std::chrono::milliseconds patience{250};
  MainCalls calls_;
  std::shared_ptr<std::function<void(const Coordinate&)>> onPosition_;
  std::unique_ptr<QThread> thread_;
};

} // namespace

bool hasLocationService(const QDBusConnection& bus, std::chrono::milliseconds patience) {
  const int timeout = static_cast<int>(patience.count());
  QDBusMessage owned = toBus(QStringLiteral("NameHasOwner"));
  owned << service;
  QDBusPendingReply<bool> runs = bus.asyncCall(owned, timeout);
  QDBusPendingReply<QStringList> startable =
      bus.asyncCall(toBus(QStringLiteral("ListActivatableNames")), timeout);
  runs.waitForFinished();
  startable.waitForFinished();
  return (runs.isValid() && runs.value()) ||
         (startable.isValid() && startable.value().contains(service));
}

Subscription followDesktop(const EventLoop& loop,
                           std::function<void(const Coordinate&)> onPosition) {
  auto follower = std::make_shared<Follower>(loop, std::move(onPosition));
  return Subscription([follower]() mutable { follower.reset(); });
}

} // namespace vitrelle::host
