// A short number that stands for a long table, so that a test can hold the table to what it was
// made from without repeating it.
#pragma once

#include <cstdint>
#include <string_view>

namespace vitrelle::test {

/// 64-bit FNV-1a.
constexpr std::uint64_t fingerprint(std::string_view text) {
  std::uint64_t hash = 0xcbf29ce484222325;
  for (const char byte : text) {
    hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001b3;
  }
  return hash;
}

} // namespace vitrelle::test
