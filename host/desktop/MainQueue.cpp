#include "host/desktop/MainQueue.h"

#include <memory>
#include <utility>

namespace vitrelle::host {

MainQueue makeMainQueue(const EventLoop& loop) {
  return {.asyncAfter = [loop](double seconds, std::function<void()> work) {
    const auto timer = std::make_shared<Subscription>();
    // A weak hold on itself: the timer belongs to whoever waits for it.
    *timer = loop.every(seconds, [weak = std::weak_ptr(timer), work = std::move(work)] {
      const auto call = work; // it goes when the timer ends
      if (const auto own = weak.lock()) own->cancel();
      call();
    });
    return Subscription([timer] { timer->cancel(); });
  }};
}

} // namespace vitrelle::host
