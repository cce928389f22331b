// The installed fonts.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace vitrelle {

struct FontFamily {
  std::string name;           ///< as people know it
  std::string postScriptName; ///< of its regular face, or the nearest it has
  bool operator==(const FontFamily&) const = default;
};

struct Fonts {
  /// Those with outlines that hold letters, by name. Looked up anew at each call.
  std::function<std::vector<FontFamily>()> families;
};

} // namespace vitrelle
