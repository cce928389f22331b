#include "host/desktop/MainCalls.h"

#include "host/files/Descriptor.h"

#include <cstdint>
#include <mutex>
#include <utility>
#include <vector>

#include <sys/eventfd.h>
#include <unistd.h>

namespace vitrelle::host {

struct MainCalls::Queue {
  Descriptor bell{eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC)};
  std::mutex mutex;
  std::vector<std::function<void()>> calls;

  void add(std::function<void()> call) {
    {
      const std::lock_guard<std::mutex> lock(mutex);
      calls.push_back(std::move(call));
    }
    constexpr std::uint64_t one = 1;
    [[maybe_unused]] const ssize_t size = write(bell.get(), &one, sizeof one);
  }

  std::vector<std::function<void()>> takeAll() {
    std::uint64_t count = 0;
    [[maybe_unused]] const ssize_t size = read(bell.get(), &count, sizeof count);
    const std::lock_guard<std::mutex> lock(mutex);
    return std::exchange(calls, {});
  }
};

MainCalls::MainCalls(const EventLoop& loop) : queue_(std::make_shared<Queue>()) {
  readable_ = loop.whenReadable(queue_->bell.get(), [weak = std::weak_ptr(queue_)] {
    const auto queue = weak.lock();
    if (!queue) return;
    for (const auto& call : queue->takeAll())
      call();
  });
}

std::function<void(std::function<void()>)> MainCalls::poster() const {
  return [queue = queue_](std::function<void()> call) { queue->add(std::move(call)); };
}

} // namespace vitrelle::host
