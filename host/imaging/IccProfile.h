// As much of ICC profiles as carrying them asks for.
#pragma once

#include <cstdint>
#include <span>

namespace vitrelle::host {

/// Whether these bytes are a profile by their size field and signature.
bool isIccProfile(std::span<const std::uint8_t> bytes);

/// Whether the profile is for red, green and blue samples.
bool isRgbProfile(std::span<const std::uint8_t> profile);

} // namespace vitrelle::host
