// The way back to the main thread for what other threads have found out.
#pragma once

#include "core/platform/Subscription.h"
#include "host/desktop/EventLoop.h"

#include <functional>
#include <memory>

namespace vitrelle::host {

/// Made and destroyed on the main thread. Copies of what `poster` gives may outlive it: their calls
/// then come to nothing.
class MainCalls final {
 public:
  explicit MainCalls(const EventLoop& loop);

  /// Callable from any thread: has the main one make this call, inside its loop, after all earlier
  /// ones.
  std::function<void(std::function<void()>)> poster() const;

 private:
  struct Queue;
  std::shared_ptr<Queue> queue_;
  Subscription readable_;
};

} // namespace vitrelle::host
