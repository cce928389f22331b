// What the forecast's symbol codes say, in the platform's words.
#pragma once

#include <optional>
#include <span>
#include <string_view>

namespace vitrelle::host {

/// One symbol code. Without a sun, by night and in polar twilight, a sky can have another name.
struct SymbolCodeRow {
  struct Condition {
    std::string_view rawValue;
    std::string_view words;
  };

  std::string_view code; ///< without its part of the day
  Condition day;
  Condition night;
  std::string_view symbolByDay; ///< each also has a picture with ".fill" behind its name
  std::string_view symbolByNight;
  std::string_view precipitation;
};

/// Every code of the service, none twice.
std::span<const SymbolCodeRow> symbolCodeRows();

/// What one code says.
struct Sky {
  std::string_view condition; ///< the platform's raw value
  std::string_view conditionDescription;
  std::string_view symbolName;
  std::string_view precipitation; ///< its kind; "none"
};

/// "rain" or "fair_night"; nothing for a code that is not known. One whose sky looks the same by
/// day and by night may have a part of the day or none; without one it is day.
std::optional<Sky> skyOf(std::string_view symbolCode);

} // namespace vitrelle::host
