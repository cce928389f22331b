// What a screen tells in a box with one button.
#pragma once

#include <string_view>

namespace vitrelle {

struct Alert {
  std::string_view title;
  std::string_view message;
  bool operator==(const Alert&) const = default;
};

} // namespace vitrelle
