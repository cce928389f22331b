// The one stream of plain debug lines.
#pragma once

#include <functional>
#include <string>

namespace vitrelle {

struct DebugConsole {
  /// One line, without its line break.
  std::function<void(const std::string& line)> print;
};

} // namespace vitrelle
