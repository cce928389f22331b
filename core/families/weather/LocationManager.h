// Where the device is, and whether the application may know, for as long as this object lives.
#pragma once

#include "core/platform/Platform.h"
#include "core/platform/Screen.h"

#include <optional>
#include <string_view>

namespace vitrelle {

/// What a status is called on the gate's debug line, where it decides.
std::string_view statusText(AuthorizationStatus status);

class LocationManager final : public Screen {
 public:
  /// Has the user asked, and asks for positions from then on. The platform must outlive it.
  explicit LocationManager(const Platform& platform);

  /// As it is now.
  AuthorizationStatus authorizationStatus() const;
  /// The last one that was told; none before the first.
  const std::optional<AuthorizationStatus>& locationStatus() const { return locationStatus_; }
  /// None where no position has come yet.
  const std::optional<Coordinate>& lastLocation() const { return lastLocation_; }

 private:
  const Platform& platform_;
  std::optional<AuthorizationStatus> locationStatus_;
  std::optional<Coordinate> lastLocation_;
  Subscription statuses_;
  Subscription positions_;
};

} // namespace vitrelle
