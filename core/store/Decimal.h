// Numbers as decimal text.
#pragma once

#include <string>

namespace vitrelle {

/// The shortest text that reads back as the same number, and never looks like an integer: "1.0".
std::string shortestDecimal(double number);

} // namespace vitrelle
