#include "host/power/PowerService.h"

#include "core/platform/Battery.h"

#include <QDBusMessage>
#include <QDBusPendingReply>
#include <QVariantMap>

#include <algorithm>
#include <utility>

namespace vitrelle::host {

namespace {

const QString service = QStringLiteral("org.freedesktop.UPower");
const QString display = QStringLiteral("/org/freedesktop/UPower/devices/DisplayDevice");
const QString device = QStringLiteral("org.freedesktop.UPower.Device");
const QString properties = QStringLiteral("org.freedesktop.DBus.Properties");
const QString changes = QStringLiteral("PropertiesChanged");

float levelOf(const QVariantMap& told) {
  constexpr uint battery = 2;
  const bool isBattery = told.value(QStringLiteral("Type")).toUInt() == battery &&
                         told.value(QStringLiteral("IsPresent")).toBool();
  bool isNumber = false;
  const double percent = told.value(QStringLiteral("Percentage")).toDouble(&isNumber);
  if (!isBattery || !isNumber || !(percent >= 0)) return unknownBatteryLevel;
  return static_cast<float>(std::min(percent / 100, 1.0));
}

} // namespace

PowerService::PowerService(QDBusConnection bus, std::chrono::milliseconds patience,
                           std::function<void()> onAnswer)
    : bus_(std::move(bus)),
      patience_(patience),
      onAnswer_(std::move(onAnswer)),
      owner_(service, bus_, QDBusServiceWatcher::WatchForOwnerChange) {
  connect(&owner_, &QDBusServiceWatcher::serviceOwnerChanged, this,
          [this](const QString&, const QString&, const QString&) { ask(); });
  // Of whoever says it there, which only makes us ask the service: for one of that name the library
  // would first ask the bus who that is, and wait.
  bus_.connect({}, display, properties, changes, this, SLOT(ask()));
  ask();
}

PowerService::~PowerService() {
  bus_.disconnect({}, display, properties, changes, this, SLOT(ask()));
}

std::optional<float> PowerService::level() {
  if (!answered_ && asked_) {
    asked_->waitForFinished();
    take();
  }
  return level_;
}

void PowerService::ask() {
  QDBusMessage message =
      QDBusMessage::createMethodCall(service, display, properties, QStringLiteral("GetAll"));
  message << device;
  message.setAutoStartService(false); // looking is no reason to start it
  asked_ = std::make_unique<QDBusPendingCallWatcher>(
      bus_.asyncCall(message, static_cast<int>(patience_.count())));
  connect(asked_.get(), &QDBusPendingCallWatcher::finished, this, [this] {
    take();
    onAnswer_();
  });
}

void PowerService::take() {
  const QDBusPendingReply<QVariantMap> reply = *asked_;
  answered_ = true;
  level_ = reply.isError() ? std::nullopt : std::optional(levelOf(reply.value()));
}

} // namespace vitrelle::host
