#include "host/desktop/QtLoop.h"

#include "host/desktop/EndSignals.h"

#include <QCoreApplication>
#include <QSocketNotifier>
#include <QTimer>

#include <memory>
#include <utility>

namespace vitrelle::host {

namespace {

void end(QSocketNotifier& notifier) {
  notifier.setEnabled(false); // at once, for the descriptor may be closed next
}
void end(QTimer& timer) {
  timer.stop();
}

/// Ends with its subscription, which may happen inside its own signal.
template <class Source>
Subscription owned(Source* source) {
  return Subscription([source] {
    end(*source);
    source->disconnect();
    source->deleteLater();
  });
}

} // namespace

EventLoop makeQtLoop() {
  return {.whenReadable =
              [](int descriptor, const std::function<void()>& call) {
                auto* notifier = new QSocketNotifier(descriptor, QSocketNotifier::Read);
                QObject::connect(notifier, &QSocketNotifier::activated, call);
                return owned(notifier);
              },
          .every =
              [](double seconds, const std::function<void()>& call) {
                auto* timer = new QTimer;
                QObject::connect(timer, &QTimer::timeout, call);
                timer->start(static_cast<int>(seconds * 1000));
                return owned(timer);
              }};
}

void runQtLoop() {
  const EndSignals end(makeQtLoop(), [] { QCoreApplication::quit(); });
  QCoreApplication::exec();
}

void endQtLoop() {
  QCoreApplication::quit();
}

} // namespace vitrelle::host
