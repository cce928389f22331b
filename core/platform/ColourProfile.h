// What a picture file says about the meaning of its samples. It is carried from a screenshot into
// each of its slices unread: a slice without it would show as a patch of another colour.
#pragma once

#include "core/platform/Data.h"

#include <array>
#include <cstdint>
#include <optional>

namespace vitrelle {

struct ColourProfile {
  /// The ICC profile, uncompressed; empty when the file has none.
  Data icc;
  /// Coding-independent code points: primaries, transfer, matrix, full-range flag.
  std::optional<std::array<std::uint8_t, 4>> cicp;
  /// Rendering intent 0 to 3 of a file that declares itself sRGB.
  std::optional<std::uint8_t> srgbIntent;
  /// Image gamma times 100,000.
  std::optional<std::uint32_t> gamma;
  /// White, red, green and blue chromaticities, x then y, times 100,000.
  std::optional<std::array<std::uint32_t, 8>> chromaticities;

  bool operator==(const ColourProfile&) const = default;
};

} // namespace vitrelle
