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

/// A thread that tells the main one something, until this goes.
template <class Told>
class Teller final {
 public:
  using Tell = std::function<void(const Told&)>;

  /// `work` tells from the thread, `tell` is called on the main one.
  Teller(const EventLoop& loop, std::function<void(const Tell&)> work, Tell tell)
      : calls_(loop),
        tell_(std::make_shared<Tell>(std::move(tell))),
        thread_(QThread::create(
            [work = std::move(work), post = calls_.poster(), weak = std::weak_ptr(tell_)] {
              work([&](const Told& told) {
                post([weak, told] {
                  if (const auto call = weak.lock()) (*call)(told);
                });
              });
            })) {
    thread_->start();
  }
  ~Teller() {
    thread_->quit();
    if (thread_->wait(QDeadlineTimer(patience))) return;
    // One that hangs in a call of the service is left to itself, and ends when that gives up.
    QThread* left = thread_.release();
    QObject::connect(left, &QThread::finished, left, &QObject::deleteLater);
    if (left->isFinished()) left->deleteLater();
  }
  Teller(const Teller&) = delete;
  Teller& operator=(const Teller&) = delete;

 private:
  static constexpr std::chrono::milliseconds patience{250};
  MainCalls calls_;
  std::shared_ptr<Tell> tell_;
  std::unique_ptr<QThread> thread_;
};

template <class Told>
Subscription owned(std::shared_ptr<Teller<Told>> teller) {
  return Subscription([teller = std::move(teller)]() mutable { teller.reset(); });
}

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

Subscription lookForService(const EventLoop& loop, std::chrono::milliseconds patience,
                            std::function<void(bool)> done) {
  return owned(std::make_shared<Teller<bool>>(
      loop,
      [patience](const std::function<void(const bool&)>& tell) {
        tell(hasLocationService(QDBusConnection::systemBus(), patience));
      },
      std::move(done)));
}

Subscription followDesktop(const EventLoop& loop,
                           std::function<void(const Coordinate&)> onPosition) {
  return owned(std::make_shared<Teller<Coordinate>>(loop, follow, std::move(onPosition)));
}

} // namespace vitrelle::host
