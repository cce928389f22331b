// What the user has settled about his position: whether the application may have it, and from
// where.
#pragma once

#include "core/platform/Geocoder.h"
#include "core/platform/Location.h"
#include "core/platform/Result.h"

#include <cstdint>
#include <functional>
#include <optional>

namespace vitrelle {

enum class LocationSource : std::uint8_t {
  none,    ///< nobody is asked where the device is
  desktop, ///< the desktop's location service
  place,   ///< a fixed place
};

struct LocationChoice {
  /// `restricted` is never chosen.
  AuthorizationStatus permission = AuthorizationStatus::notDetermined;
  LocationSource source = LocationSource::desktop;
  /// The fixed place, also kept while another source is chosen.
  std::optional<City> city = std::nullopt;
  bool operator==(const LocationChoice&) const = default;
};

struct LocationSettings {
  std::function<LocationChoice()> current;
  /// Holds at once; fails where it can't be kept for later programs.
  std::function<Status(const LocationChoice&)> save;
  /// Calls with the present choice before it returns, then with each other one.
  std::function<Subscription(std::function<void(const LocationChoice&)> subscriber)> watch;
  /// Whether the desktop has a location service.
  std::function<bool()> hasDesktopService;
};

} // namespace vitrelle
