#include "core/platform/Subscription.h"

#include <utility>

namespace vitrelle {

Subscription::Subscription(std::function<void()> cancel) : cancel_(std::move(cancel)) {}

Subscription::~Subscription() {
  cancel();
}

Subscription::Subscription(Subscription&& other) noexcept
    : cancel_(std::exchange(other.cancel_, nullptr)) {}

Subscription& Subscription::operator=(Subscription&& other) noexcept {
  if (this != &other) {
    cancel();
    cancel_ = std::exchange(other.cancel_, nullptr);
  }
  return *this;
}

void Subscription::cancel() {
  if (const auto cancel = std::exchange(cancel_, nullptr)) cancel();
}

} // namespace vitrelle
