#include "core/store/Decimal.h"

#include <array>
#include <charconv>
#include <cmath>

namespace vitrelle {

std::string shortestDecimal(double number) {
  std::array<char, 32> buffer{};
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number).ptr;
  std::string text(buffer.data(), end);
  if (std::isfinite(number) && text.find_first_of(".e") == std::string::npos) text += ".0";
  return text;
}

} // namespace vitrelle
