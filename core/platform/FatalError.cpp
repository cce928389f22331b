#include "core/platform/FatalError.h"

#include <cstdio>
#include <cstdlib>

namespace vitrelle {

void fatalError(std::string_view words) {
  std::fprintf(stderr, "Fatal error: %.*s\n", static_cast<int>(words.size()), words.data());
  std::fflush(nullptr);
  std::abort();
}

// The builtins are those of both compilers we support (g++ and clang).

std::int64_t checkedAdd(std::int64_t left, std::int64_t right) {
  std::int64_t sum = 0;
  if (__builtin_add_overflow(left, right, &sum)) fatalError("arithmetic overflow in an addition");
  return sum;
}

std::int64_t checkedMultiply(std::int64_t left, std::int64_t right) {
  std::int64_t product = 0;
  if (__builtin_mul_overflow(left, right, &product)) {
    fatalError("arithmetic overflow in a multiplication");
  }
  return product;
}

} // namespace vitrelle
