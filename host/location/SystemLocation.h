// Where the device is: told by the desktop's location service, or a place that the user has chosen.
// The user's choice between them, and whether the application may know, are kept here.
#pragma once

#include "core/platform/Location.h"
#include "core/platform/LocationSettings.h"
#include "core/platform/Platform.h"
#include "host/Host.h"

#include <functional>

namespace vitrelle::host {

/// What a program with a window does with its user; a program without one leaves them empty.
struct LocationPages {
  /// Asks him whether the application may know; the answer is saved in the settings. Called once
  /// for each time that nothing is settled.
  std::function<void()> ask = {};
  /// Opens what the settings are changed in.
  std::function<void()> openSettings = {};
};

/// Where positions come from.
struct LocationSources {
  HomeFolder home; ///< in which the choice is kept
  /// Whether the desktop has a location service; asked once, when it first matters.
  std::function<bool()> hasService;
  /// Has the service call back with positions, for as long as the subscription lives.
  std::function<Subscription(std::function<void(const Coordinate&)>)> follow;
  LocationPages pages = {};
};

/// Two groups of operations over one choice.
struct LocationOperations {
  Location location;
  LocationSettings settings;
};

LocationOperations makeLocation(LocationSources sources);

/// Puts them into a platform; where the options tell a position, that stays, whatever the settings
/// are. Needs a QCoreApplication for as long as they are used.
void useLocation(Platform& platform, const HostOptions& options, const EventLoop& loop,
                 LocationPages pages = {});

} // namespace vitrelle::host
