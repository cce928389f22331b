#include "host/power/SystemBattery.h"

#include "host/desktop/Worker.h"
#include "host/power/PowerService.h"
#include "host/power/PowerSupplies.h"

#include <QEventLoop>
#include <QTimer>

#include <memory>
#include <optional>
#include <utility>

namespace vitrelle::host {

namespace {

class SystemBattery final {
 public:
  explicit SystemBattery(PowerSources sources) : sources_(std::move(sources)) {}

  void setMonitoring(bool on) {
    monitored_ = on;
    if (on && !std::exchange(isSought_, true)) {
      supplies_ = sources_.watchSupplies([this] { tell(); });
      connecting_ = sources_.connect([this](const QDBusConnection& bus) {
        // Its first answer, if only that it is not there, tells the subscribers.
        service_ = std::make_unique<PowerService>(bus, sources_.patience, [this] { tell(); });
      });
    }
    tell();
  }

  float level() const {
    if (!monitored_) return unknownBatteryLevel;
    const std::optional<float> told = service_ ? service_->level() : std::nullopt;
    return told ? *told : batteryLevelIn(sources_.supplies);
  }

  Subscription watch(std::function<void(float)> subscriber) {
    const float present = level();
    subscriber(present);
    return subscribers_.add(
        [subscriber = std::move(subscriber), last = std::make_shared<float>(present)](float next) {
          if (std::exchange(*last, next) != next) subscriber(next);
        });
  }

 private:
  void tell() const {
    if (!subscribers_.empty()) subscribers_.notify(level());
  }

  PowerSources sources_;
  bool monitored_ = false;
  bool isSought_ = false;                 ///< from the first monitoring on
  std::unique_ptr<PowerService> service_; ///< from then on when there is a bus
  Subscription supplies_;
  Subscribers<float> subscribers_;
  Subscription connecting_; ///< last, for it calls this
};

using Connected = std::function<void(const QDBusConnection&)>;
using Connect = std::function<Subscription(Connected)>;

/// In a program that ends at once.
constexpr std::chrono::milliseconds connectionPatience{250};

/// On a thread of its own: a bus may take a connection and then stay silent.
Connect connectAside(const EventLoop& loop) {
  return [worker = std::make_shared<Worker>(loop)](Connected done) {
    return worker->run<QDBusConnection>(QDBusConnection::systemBus, std::move(done));
  };
}

void use(Platform& platform, const HostOptions& options, const EventLoop& loop, Connect connect) {
  if (options.battery) return;
  platform.battery = makeBattery(
      {.connect = std::move(connect), .watchSupplies = [loop](std::function<void()> onChange) {
         return watchPowerSupplies(loop, std::move(onChange));
       }});
}

} // namespace

Battery makeBattery(PowerSources sources) {
  const auto battery = std::make_shared<SystemBattery>(std::move(sources));
  return {.setMonitoringEnabled = [battery](bool on) { battery->setMonitoring(on); },
          .level = [battery] { return battery->level(); },
          .watch =
              [battery](std::function<void(float)> subscriber) {
                return battery->watch(std::move(subscriber));
              }};
}

void useBattery(Platform& platform, const HostOptions& options, const EventLoop& loop) {
  use(platform, options, loop, connectAside(loop));
}

void useBatteryAtOnce(Platform& platform, const HostOptions& options, const EventLoop& loop) {
  use(platform, options, loop, [connect = connectAside(loop)](Connected done) {
    const auto waiting = std::make_shared<QEventLoop>();
    QTimer::singleShot(connectionPatience, waiting.get(), &QEventLoop::quit);
    Subscription connecting =
        connect([waiting, done = std::move(done)](const QDBusConnection& bus) {
          done(bus);
          waiting->quit();
        });
    waiting->exec();
    return connecting;
  });
}

} // namespace vitrelle::host
