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
  /// Calls back once, sooner or later or before it returns, whether the desktop has a location
  /// service. Asked once, when it first matters. Until then all is as if it had, but that nobody is
  /// asked anything, for it most often has; then those who watch the choice or the status are told.
  std::function<Subscription(std::function<void(bool)>)> lookForService;
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
                 LocationPages pages);
/// The same in a program that ends at once: for half a second it waits, in its loop, until it
/// knows.
void useLocationAtOnce(Platform& platform, const HostOptions& options, const EventLoop& loop);

} // namespace vitrelle::host
