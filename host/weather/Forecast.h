// The weather service's reply, read.
#pragma once

#include "core/platform/WeatherService.h"

#include <cstdint>
#include <span>

namespace vitrelle::host {

/// The weather at a moment, of a reply in the service's JSON. Its hours begin with the step in
/// which the moment lies. Fails for a reply that does not tell the moment's weather, or tells of
/// values that no weather has. Takes any bytes, in time and memory that grow with their number.
Result<Weather> readForecast(std::span<const std::uint8_t> reply, const Date& moment);

} // namespace vitrelle::host
