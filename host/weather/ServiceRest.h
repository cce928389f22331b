// The time in which a service that failed is left in peace, by this program and by those after it.
#pragma once

#include "host/files/HomeFolder.h"

#include <chrono>
#include <string>

namespace vitrelle::host {

/// Kept beside the replies, and held in memory too, for homes that can't be written to. For one
/// thread.
class ServiceRest final {
 public:
  /// Whatever a service wants.
  static constexpr std::chrono::seconds longest = std::chrono::hours(24);

  /// Of the service at this address.
  ServiceRest(HomeFolder home, std::string url);

  bool lasts() const;
  void begin(std::chrono::milliseconds length);

 private:
  std::string file() const { return home_.cacheFolder() + "/rest"; }

  HomeFolder home_;
  std::string url_;
  std::chrono::steady_clock::time_point until_{}; ///< as this program knows it
};

} // namespace vitrelle::host
