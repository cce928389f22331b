// Numbers on the command line, taken only as people write them.
#pragma once

#include <CLI/CLI.hpp>

#include <cstdint>
#include <optional>
#include <string>

namespace vitrelle::cli {

/// Nothing unless the text is the number as it would be written: no "0x1", no "01", no blank.
std::optional<std::int64_t> wholeNumber(const std::string& text);

/// The same of a number that may have decimals: no "1e3", no ".5", no "5.", and nothing between
/// -1 and 0.
std::optional<double> decimalNumber(const std::string& text);

/// Lets through whole decimal numbers in the range and nothing else: the option parser by itself
/// takes an empty text for 0, and "0x1", "010" and " 1" for numbers.
CLI::Validator wholeNumber(std::int64_t lowest, std::int64_t highest);

/// A style's number, from 0.
CLI::Validator styleNumber();

} // namespace vitrelle::cli
