// Text from outside (names of files, keys, what is stored) on its way to a person: it never steers
// a terminal, and a line of ours stays one line.
#pragma once

#include <string>
#include <string_view>

namespace vitrelle::cli {

/// The text with an escape for all that steers: "\n", "\t", "\r" and "\x1b" for the control
/// characters of ASCII, "\u009b" for other controls, for separators of lines and for what overrides
/// the direction of writing, "\xff" for a byte that is no UTF-8. All else stays as it is,
/// backslashes too: it is for reading, not for reading back.
std::string oneLine(std::string_view text);

/// The same in quotation marks; those in it, and backslashes, have a backslash before them.
std::string quotedLine(std::string_view text);

} // namespace vitrelle::cli
