// As much of ICC profiles as carrying them asks for.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace vitrelle::host {

/// A larger profile is not carried: it goes into every slice.
inline constexpr std::size_t largestIccProfile = std::size_t{4} << 20;

/// Whether these bytes are a profile by their size field and signature, and no larger.
bool isIccProfile(std::span<const std::uint8_t> bytes);

/// Whether the profile is for red, green and blue samples.
bool isRgbProfile(std::span<const std::uint8_t> profile);

} // namespace vitrelle::host
