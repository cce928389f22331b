// The event loop of programs without a window.
#pragma once

#include "host/desktop/EventLoop.h"

#include <chrono>
#include <cstdint>
#include <map>
#include <memory>

namespace vitrelle::host {

/// Waits with poll(2). For one thread; must outlive the subscriptions made through it.
class PollLoop final {
 public:
  /// The operations refer to this loop.
  EventLoop operations();

  /// Runs until `stop` is called from inside it or SIGINT or SIGTERM arrives.
  void run();
  void stop() { stopped_ = true; }

 private:
  using Clock = std::chrono::steady_clock;
  struct Reader {
    int descriptor;
    std::function<void()> call;
  };
  struct Timer {
    Clock::duration distance;
    Clock::time_point due;
    std::function<void()> call;
  };

  int millisecondsToNextTimer() const;
  void runReaders(int timeoutMilliseconds);
  void runDueTimers();

  std::uint64_t nextTicket_ = 0;
  std::map<std::uint64_t, Reader> readers_;
  std::map<std::uint64_t, Timer> timers_;
  bool stopped_ = false;
};

} // namespace vitrelle::host
