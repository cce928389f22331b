// Any bytes as a reply of the weather service: a failure, or weather that can be.
#include "host/weather/Forecast.h"

#include <cstdlib>

namespace {

void require(bool holds) {
  if (!holds) std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  using namespace vitrelle;
  constexpr Date now{816958800 + 60}; // in the first step of the seeds
  const Result<Weather> read = host::readForecast({bytes, size}, now);
  if (!read) {
    require(!read.failure().why.empty());
    return 0;
  }
  const auto& [current, hours] = *read;
  require(current.temperature >= -150 && current.temperature <= 100);
  require(current.humidity >= 0 && current.humidity <= 1.5);
  require(current.pressure > 0 && current.uvIndex >= 0 && current.uvIndex <= 100);
  require(!current.symbolName.empty() && !current.condition.empty());
  double last = -1e300;
  for (const HourWeather& hour : hours) {
    require(!hour.precipitation.empty() && hour.date.secondsSinceReferenceDate >= last);
    last = hour.date.secondsSinceReferenceDate;
  }
  return 0;
}
