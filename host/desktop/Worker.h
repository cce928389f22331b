// One thread beside the main one, for work that would hold that up.
#pragma once

#include "core/platform/Subscription.h"
#include "host/desktop/EventLoop.h"
#include "host/desktop/MainCalls.h"

#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <utility>

namespace vitrelle::host {

/// Its thread begins with the first piece of work and costs nothing while there is none. Destroying
/// it waits for the piece that runs, and drops the others.
class Worker final {
 public:
  explicit Worker(const EventLoop& loop) : calls_(loop) {}

  /// Has the thread do the work, one piece after the other, and then calls `done` on the main one,
  /// on which alone that lives and goes. Once the subscription has ended nothing of it is called,
  /// nor begun.
  template <class Answer>
  Subscription run(std::function<Answer()> work, std::function<void(const Answer&)> done) {
    auto kept = std::make_shared<std::function<void(const Answer&)>>(std::move(done));
    add([weak = std::weak_ptr(kept), work = std::move(work), post = calls_.poster()] {
      if (weak.expired()) return;
      post([weak, answer = work()] {
        if (const auto call = weak.lock()) (*call)(answer);
      });
    });
    return Subscription([kept]() mutable { kept.reset(); });
  }

 private:
  void add(std::function<void()> piece);
  void runAll(const std::stop_token& stop);

  MainCalls calls_;
  std::mutex mutex_;
  std::condition_variable_any more_;
  std::deque<std::function<void()>> waiting_;
  std::jthread thread_; ///< last, for it uses the others until its end
};

} // namespace vitrelle::host
