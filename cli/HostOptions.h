// How the options of the command line choose a host.
#pragma once

#include "cli/Options.h"
#include "host/Host.h"

namespace vitrelle::cli {

inline host::HostOptions hostOptions(const Options& options) {
  return {
      .home = options.home ? host::HomeFolder(*options.home) : host::HomeFolder::ofUser(),
      .phone = {.identifier = options.phoneIdentifier, .os = options.os, .zoomed = options.zoomed},
      .dark = options.appearance == Appearance::dark,
      .verbose = options.verbose};
}

} // namespace vitrelle::cli
