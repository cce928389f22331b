// Any text as a colour, in either coding: components stay in range, and writing and reading it
// again changes nothing.
#include "core/store/Colour.h"
#include "core/store/ColourComponents.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  using vitrelle::Colour;
  const std::string_view text(reinterpret_cast<const char*>(bytes), size);
  const Colour colour = Colour::parse(text);
  for (const float part : {colour.red, colour.green, colour.blue, colour.alpha}) {
    if (!(part >= 0 && part <= 1)) std::abort();
  }
  const auto digits = colour.hex(true);
  if (!digits || digits->size() != 8 || Colour::parse(*digits) != colour) std::abort();
  const auto opaque = Colour::parse(colour.hex(false).value_or(""));
  if (opaque != Colour{colour.red, colour.green, colour.blue}) std::abort();
  if (const auto components = vitrelle::parseColourComponents(text)) {
    for (const double part :
         {components->red, components->green, components->blue, components->alpha}) {
      if (!(part >= 0 && part <= 1)) std::abort();
    }
    const std::string again = vitrelle::colourComponents(*components);
    if (vitrelle::parseColourComponents(again) != components) std::abort();
  }
  return 0;
}
