// A display list in words, one item a line, for people and tests to read.
#pragma once

#include "core/platform/DisplayList.h"

#include <string>

namespace vitrelle {

/// Such as: text "Hello" in "Inter-Bold" 18 FFFFFF at 12 4 size 42 22. What is in a group is
/// indented below it; numbers have up to three decimals.
std::string describe(const DisplayList& list);

} // namespace vitrelle
