// The signals by which a system asks a program to end, as calls inside its event loop: what is open
// can then be closed as if the user had done so.
#pragma once

#include "core/platform/Subscription.h"
#include "host/desktop/EventLoop.h"

#include <functional>

namespace vitrelle::host {

/// Calls back at SIGTERM, SIGINT and SIGHUP for as long as it lives; one in a process. A second
/// signal of a kind ends the process at once, as it would without this. One that is ignored
/// already, as by nohup, stays so.
class EndSignals final {
 public:
  EndSignals(const EventLoop& loop, std::function<void()> end);
  ~EndSignals();
  EndSignals(const EndSignals&) = delete;
  EndSignals& operator=(const EndSignals&) = delete;

 private:
  int reader_ = -1;
  Subscription readable_;
};

} // namespace vitrelle::host
