// At most one application runs over a home folder. Others hand it what they were started with,
// through a socket in the folder that only the user can reach.
#pragma once

#include "core/platform/Links.h"
#include "core/platform/Subscription.h"
#include "host/desktop/EventLoop.h"
#include "host/files/Descriptor.h"
#include "host/files/HomeFolder.h"

#include <functional>
#include <memory>
#include <string>

namespace vitrelle::host {

/// The longest URL that is handed on, in bytes.
inline constexpr std::size_t longestLink = 8192;

/// Held by the running application for as long as it lives.
class AppInstance final {
 public:
  /// Null, without a failure, when another holds it.
  static Result<std::unique_ptr<AppInstance>> claim(const HomeFolder& home, const EventLoop& loop);
  ~AppInstance();
  AppInstance(const AppInstance&) = delete;
  AppInstance& operator=(const AppInstance&) = delete;

  /// Called inside the loop for each link; an empty one only asks that the window be raised.
  void onLink(std::function<void(const std::string& url)> handler) {
    handler_ = std::move(handler);
  }

 private:
  AppInstance(Descriptor lock, Descriptor socket, const EventLoop& loop);
  void accept();

  Descriptor lock_;
  Descriptor socket_;
  std::function<void(const std::string&)> handler_;
  Subscription readable_; ///< last, for it watches the socket
};

/// Sends to whoever holds the instance. An empty URL raises its window.
Links makeLinks(const HomeFolder& home);

} // namespace vitrelle::host
