// A whole file in memory.
#pragma once

#include <cstdint>
#include <fstream>
#include <iterator>
#include <vector>

namespace bench {

inline std::vector<std::uint8_t> readBytes(const char* path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

} // namespace bench
