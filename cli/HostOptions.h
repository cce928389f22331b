// How the options of the command line choose a host, and make the platform on it.
#pragma once

#include "cli/Options.h"
#include "host/Host.h"
#include "host/time/Clock.h"

#include <optional>

namespace vitrelle::cli {

inline Date momentOf(const ToldTime& told) {
  return told.onTheWall ? host::firstMomentAt(told.time) : told.time;
}

inline host::HostOptions hostOptions(const Options& options) {
  return {.home = options.home ? host::HomeFolder(*options.home) : host::HomeFolder::ofUser(),
          .phone = {.identifier = options.phoneIdentifier,
                    .os = options.os,
                    .zoomed = options.zoomed,
                    .appearance = options.appearance},
          .now = options.now ? std::optional(momentOf(*options.now)) : std::nullopt,
          .battery = options.battery,
          .weatherUrl = options.weatherUrl,
          .location = options.location,
          .verbose = options.verbose};
}

/// Fails where something stands in the home that does not belong there.
inline Result<Platform> hostPlatform(const Options& options, const host::EventLoop& loop) {
  const host::HostOptions chosen = hostOptions(options);
  if (const Status sound = chosen.home.check(); !sound) return sound.failure();
  return host::makePlatform(chosen, loop);
}

} // namespace vitrelle::cli
