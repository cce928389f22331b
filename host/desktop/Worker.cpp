#include "host/desktop/Worker.h"

#include <utility>

namespace vitrelle::host {

void Worker::add(std::function<void()> piece) {
  {
    const std::lock_guard<std::mutex> lock(mutex_);
    waiting_.push_back(std::move(piece));
  }
  more_.notify_one();
  if (!thread_.joinable())
    thread_ = std::jthread([this](const std::stop_token& stop) { runAll(stop); });
}

void Worker::runAll(const std::stop_token& stop) {
  for (;;) {
    std::function<void()> next;
    {
      std::unique_lock<std::mutex> lock(mutex_);
      more_.wait(lock, stop, [this] { return !waiting_.empty(); });
      if (stop.stop_requested()) return;
      next = std::move(waiting_.front());
      waiting_.pop_front();
    }
    next();
  }
}

} // namespace vitrelle::host
