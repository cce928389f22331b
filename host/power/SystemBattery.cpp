#include "host/power/SystemBattery.h"

#include "host/power/PowerService.h"
#include "host/power/PowerSupplies.h"

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
    if (on && !service_) {
      // The service's first answer, if only that it is not there, tells the subscribers.
      service_ =
          std::make_unique<PowerService>(sources_.bus(), sources_.patience, [this] { tell(); });
      supplies_ = sources_.watchSupplies([this] { tell(); });
    } else {
      tell();
    }
  }

  float level() const {
    if (!monitored_) return unknownBatteryLevel;
    const std::optional<float> told = service_->level();
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
  std::unique_ptr<PowerService> service_; ///< from the first monitoring on
  Subscription supplies_;
  Subscribers<float> subscribers_;
};

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
  if (options.battery) return;
  platform.battery = makeBattery({.bus = [] { return QDBusConnection::systemBus(); },
                                  .watchSupplies =
                                      [loop](std::function<void()> onChange) {
                                        return watchPowerSupplies(loop, std::move(onChange));
                                      }});
}

} // namespace vitrelle::host
