// How much of a stored count is listed. Any number may be stored, and no screen or program may take
// the time and the memory that a damaged one asks for.
#pragma once

#include <algorithm>
#include <cstdint>

namespace vitrelle {

/// No more wallpaper or widget styles than this are listed: a store holds a dozen, unless it is
/// damaged.
inline constexpr std::int64_t mostListed = 100;

/// How many of so many styles are listed.
constexpr std::int64_t listed(std::int64_t count) {
  return std::clamp<std::int64_t>(count, 0, mostListed);
}

} // namespace vitrelle
