// Integers as network byte order has them, in picture files.
#pragma once

#include <cstdint>

namespace vitrelle::host {

inline std::uint32_t readBigEndian16(const std::uint8_t* bytes) {
  return static_cast<std::uint32_t>(bytes[0] << 8 | bytes[1]);
}

inline std::uint32_t readBigEndian32(const std::uint8_t* bytes) {
  return readBigEndian16(bytes) << 16 | readBigEndian16(bytes + 2);
}

inline void writeBigEndian32(std::uint8_t* bytes, std::uint32_t value) {
  for (int i = 0; i < 4; ++i)
    bytes[i] = static_cast<std::uint8_t>(value >> (24 - 8 * i));
}

} // namespace vitrelle::host
