// The desktop's power service, which counts all batteries of the machine as one.
#pragma once

#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QObject>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace vitrelle::host {

class PowerService final : public QObject {
  Q_OBJECT

 public:
  /// Asks at once, and again when the service says that something changed, or starts. One that does
  /// not answer for so long counts as none. `onAnswer` is called from the event loop.
  PowerService(QDBusConnection bus, std::chrono::milliseconds patience,
               std::function<void()> onAnswer);
  ~PowerService() override;

  /// Nothing where there is no service. The first answer is waited for.
  std::optional<float> level();

 private:
  Q_SLOT void ask();
  void take();

  QDBusConnection bus_;
  std::chrono::milliseconds patience_;
  std::function<void()> onAnswer_;
  QDBusServiceWatcher owner_;
  std::unique_ptr<QDBusPendingCallWatcher> asked_; ///< null when everything is answered
  bool answered_ = false;
  std::optional<float> level_;
};

} // namespace vitrelle::host
