// Colours on the command line, in hexadecimal digits.
#pragma once

#include "core/platform/PlatformColour.h"

#include <CLI/CLI.hpp>

#include <optional>
#include <string>

namespace vitrelle::cli {

/// Why the text is no RRGGBB and no RRGGBBAA, either with a "#" before it; empty when it is one.
std::string whyNoColour(const std::string& text);

/// "--colour", which takes only such a text.
void addColourOption(CLI::App& command, std::optional<std::string>& colour);

/// Of a text that is one.
PlatformColour colourOf(const std::string& text);

/// Upper-case digits; those of the opacity only where it is not full.
std::string hexadecimal(const PlatformColour& colour);

} // namespace vitrelle::cli
