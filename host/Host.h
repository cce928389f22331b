// The platform on Linux, put together: what each program's main.cpp builds its `Platform` from.
#pragma once

#include "core/platform/Platform.h"
#include "host/desktop/EventLoop.h"
#include "host/files/HomeFolder.h"
#include "host/phone/PhoneSettings.h"

#include <optional>
#include <string>

namespace vitrelle::host {

struct HostOptions {
  HomeFolder home;
  PhoneOverrides phone;
  /// What is taken for the present moment, the battery's level and the device's position, instead
  /// of the real ones.
  std::optional<Date> now = {};
  std::optional<float> battery = {};
  /// The weather service's address, instead of the real one's.
  std::optional<std::string> weatherUrl = {};
  std::optional<Coordinate> location = {};
  /// How long another program's lock on a store is waited for, in milliseconds.
  int storePatience = 5000;
  bool verbose = false; ///< the debug console goes to stderr, else nowhere
};

/// The platform's operations. What `loop` refers to must outlive them.
Platform makePlatform(const HostOptions& options, const EventLoop& loop);

} // namespace vitrelle::host
