// Where the device is, as far as its user lets the application know.
#pragma once

#include "core/platform/Subscription.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace vitrelle {

/// As the platform numbers them. Others may come.
enum class AuthorizationStatus : std::int32_t {
  notDetermined = 0,
  restricted = 1, ///< nothing that the user could change: there is no source of positions
  denied = 2,
  authorizedAlways = 3,
  authorizedWhenInUse = 4,
};

constexpr bool isAuthorized(AuthorizationStatus status) {
  return status == AuthorizationStatus::authorizedAlways ||
         status == AuthorizationStatus::authorizedWhenInUse;
}

/// Degrees, north and east positive.
struct Coordinate {
  double latitude = 0;
  double longitude = 0;
  bool operator==(const Coordinate&) const = default;
};

struct Location {
  std::function<AuthorizationStatus()> authorizationStatus;
  /// Calls with the present status before it returns, then with each other one.
  std::function<Subscription(std::function<void(AuthorizationStatus)> subscriber)>
      watchAuthorization;
  /// Has the user asked, unless he has answered before. Does not wait for the answer.
  std::function<void()> requestWhenInUseAuthorization;
  /// Positions as they come, the newest of each delivery last; none while it is not authorised. The
  /// last known one, if there is one, comes before it returns.
  std::function<Subscription(std::function<void(const std::vector<Coordinate>&)> subscriber)>
      startUpdatingLocation;
  /// Leads to where the user changes his answer.
  std::function<void()> openSettings;
};

} // namespace vitrelle
