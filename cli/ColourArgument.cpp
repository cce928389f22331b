#include "cli/ColourArgument.h"

#include "core/store/Colour.h"

#include <cmath>

namespace vitrelle::cli {

std::string whyNoColour(const std::string& text) {
  return Colour::isWritten(text) ? "" : "'" + text + "' is no colour, such as FF8000";
}

void addColourOption(CLI::App& command, std::optional<std::string>& colour) {
  command.add_option("--colour", colour, "sRGB, and the opacity if it is not full")
      ->check(CLI::Validator(whyNoColour, "RRGGBB[AA]"));
}

PlatformColour colourOf(const std::string& text) {
  const Colour colour = Colour::parse(text);
  // The exact share of a byte: that of a float has more digits.
  const auto share = [](float part) { return static_cast<double>(std::lround(part * 255)) / 255; };
  return {share(colour.red), share(colour.green), share(colour.blue), share(colour.alpha)};
}

std::string hexadecimal(const PlatformColour& colour) {
  const auto part = [](double share) { return static_cast<float>(share); };
  const Colour coded{part(colour.red), part(colour.green), part(colour.blue), part(colour.alpha)};
  return coded.hex(colour.alpha < 1).value_or("");
}

} // namespace vitrelle::cli
