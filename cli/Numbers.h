// Numbers on the command line, taken only as people write them.
#pragma once

#include <CLI/CLI.hpp>

#include <cstdint>

namespace vitrelle::cli {

/// Lets through whole decimal numbers in the range and nothing else: the option parser by itself
/// takes an empty text for 0, and "0x1", "010" and " 1" for numbers.
CLI::Validator wholeNumber(std::int64_t lowest, std::int64_t highest);

/// A style's number, from 0.
CLI::Validator styleNumber();

} // namespace vitrelle::cli
