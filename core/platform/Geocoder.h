// Names of places.
#pragma once

#include "core/platform/Location.h"
#include "core/platform/Result.h"
#include "core/platform/Subscription.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace vitrelle {

/// What is at a position.
struct Placemark {
  std::optional<std::string> locality = std::nullopt; ///< the town's name, UTF-8
  bool operator==(const Placemark&) const = default;
};

/// A town that can be found by its name. UTF-8 throughout.
struct City {
  std::string name = {};
  std::string country = {}; ///< in words where they are known, else its two-letter code
  Coordinate position = {};
  bool operator==(const City&) const = default;
};

/// Both answer on the main thread, after they have returned; never once the subscription has ended.
struct Geocoder {
  /// The nearest first. None where there is nothing within reach.
  std::function<Subscription(const Coordinate&,
                             std::function<void(const Result<std::vector<Placemark>>&)> completion)>
      reverseGeocodeLocation;
  /// Towns whose names the words may mean, the likeliest first and no more than `most`.
  std::function<Subscription(const std::string& words, std::size_t most,
                             std::function<void(const Result<std::vector<City>>&)> completion)>
      search;
};

} // namespace vitrelle
