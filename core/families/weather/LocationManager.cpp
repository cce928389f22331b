#include "core/families/weather/LocationManager.h"

#include <vector>

namespace vitrelle {

std::string_view statusText(AuthorizationStatus status) {
  switch (status) {
  case AuthorizationStatus::notDetermined:
    return "Not Determinable";
  case AuthorizationStatus::restricted:
    return "Restricted by User";
  case AuthorizationStatus::denied:
    return "Denied";
  case AuthorizationStatus::authorizedAlways:
    return "Allowed Always";
  case AuthorizationStatus::authorizedWhenInUse:
    return "Allowed When in Use";
  }
  return "unknown";
}

LocationManager::LocationManager(const Platform& platform) : platform_(platform) {
  statuses_ = platform.location.watchAuthorization([this](AuthorizationStatus status) {
    locationStatus_ = status;
    changed();
  });
  platform.location.requestWhenInUseAuthorization();
  positions_ =
      platform.location.startUpdatingLocation([this](const std::vector<Coordinate>& positions) {
        if (positions.empty()) return;
        lastLocation_ = positions.back();
        changed();
      });
}

AuthorizationStatus LocationManager::authorizationStatus() const {
  return platform_.location.authorizationStatus();
}

} // namespace vitrelle
