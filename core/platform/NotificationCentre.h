// Notes that one piece of the application leaves for whoever may listen.
#pragma once

#include "core/platform/Subscription.h"

#include <cstdint>
#include <functional>
#include <map>
#include <string>

namespace vitrelle {

struct Notification {
  std::string name;
  std::map<std::string, std::int64_t> userInfo;
  bool operator==(const Notification&) const = default;
};

struct NotificationCentre {
  /// Calls the listeners before it returns.
  std::function<void(const Notification&)> post;
  std::function<Subscription(std::function<void(const Notification&)>)> listen;
};

} // namespace vitrelle
