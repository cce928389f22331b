// The numbers of the PNG format.
#pragma once

#include <cstdint>

namespace vitrelle::host::png {

inline constexpr std::uint8_t signature[8] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};

// Colour types.
inline constexpr std::uint8_t grey = 0;
inline constexpr std::uint8_t rgb = 2;
inline constexpr std::uint8_t palette = 3;
inline constexpr std::uint8_t greyAlpha = 4;
inline constexpr std::uint8_t rgba = 6;

/// A chunk's type as a number, the first letter highest.
constexpr std::uint32_t chunkType(const char (&letters)[5]) {
  std::uint32_t type = 0;
  for (int i = 0; i < 4; ++i)
    type = type << 8 | static_cast<std::uint8_t>(letters[i]);
  return type;
}

inline constexpr std::uint32_t IHDR = chunkType("IHDR");
inline constexpr std::uint32_t IDAT = chunkType("IDAT");
inline constexpr std::uint32_t IEND = chunkType("IEND");
inline constexpr std::uint32_t PLTE = chunkType("PLTE");
inline constexpr std::uint32_t tRNS = chunkType("tRNS");
inline constexpr std::uint32_t iCCP = chunkType("iCCP");
inline constexpr std::uint32_t sRGB = chunkType("sRGB");
inline constexpr std::uint32_t gAMA = chunkType("gAMA");
inline constexpr std::uint32_t cHRM = chunkType("cHRM");
inline constexpr std::uint32_t cICP = chunkType("cICP");

} // namespace vitrelle::host::png
