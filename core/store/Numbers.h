// The two kinds of number that screens hand on, as types of their own: neither takes the place of
// the other.
#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>

namespace vitrelle {

/// Of a wallpaper style, from 0. Screens show it plus 1.
struct StyleNumber {
  std::int64_t value = 0;
  auto operator<=>(const StyleNumber&) const = default;
};

/// Where a record stands in its family's array, from 0.
struct RecordIndex {
  std::int64_t value = 0;

  /// Whether an array of so many records has it.
  bool isWithin(std::size_t count) const {
    return value >= 0 && static_cast<std::uint64_t>(value) < count;
  }
  auto operator<=>(const RecordIndex&) const = default;
};

} // namespace vitrelle
