// Owned subscriptions, and the list of subscribers behind them.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <vector>

namespace vitrelle {

/// Keeps one subscriber subscribed for as long as it lives. Movable, not copyable.
class [[nodiscard]] Subscription final {
 public:
  Subscription() = default;
  explicit Subscription(std::function<void()> cancel);
  ~Subscription();
  Subscription(Subscription&& other) noexcept;
  Subscription& operator=(Subscription&& other) noexcept;

  /// Ends the subscription; the subscriber is never called again, even when this happens inside a
  /// notification. A second call does nothing.
  void cancel();

 private:
  std::function<void()> cancel_;
};

/// The subscribers of one thing, called in the order in which they came. For one thread.
/// A subscriber that cancels itself or another inside a notification, or adds one, is safe; one
/// added during a notification is first called by the next.
template <class... Values>
class Subscribers final {
 public:
  Subscription add(std::function<void(Values...)> subscriber) {
    const std::uint64_t ticket = state_->next++;
    state_->subscribers.emplace(ticket, std::move(subscriber));
    return Subscription([weak = std::weak_ptr<State>(state_), ticket] {
      if (const auto state = weak.lock()) state->subscribers.erase(ticket);
    });
  }

  void notify(Values... values) const {
    const auto state = state_; // a subscriber may destroy this list
    std::vector<std::uint64_t> tickets;
    for (const auto& entry : state->subscribers)
      tickets.push_back(entry.first);
    for (const std::uint64_t ticket : tickets) {
      const auto found = state->subscribers.find(ticket);
      if (found == state->subscribers.end()) continue;
      const auto subscriber = found->second; // it may cancel itself while it runs
      subscriber(values...);
    }
  }

  bool empty() const { return state_->subscribers.empty(); }

 private:
  struct State {
    std::uint64_t next = 0;
    std::map<std::uint64_t, std::function<void(Values...)>> subscribers;
  };
  std::shared_ptr<State> state_ = std::make_shared<State>();
};

} // namespace vitrelle
