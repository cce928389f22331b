// The colours of the user's own wallpaper, which every colour editor shows beside its controls.
#pragma once

#include "core/colour/ColorThief.h"
#include "core/platform/PlatformColour.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace vitrelle {

/// What differs between the editors.
struct SuggestingEditor {
  std::string_view family;
  std::int64_t coloursAsked; ///< of the quantiser
  bool hasHint;
};

/// The battery editor asks for fewer than it shows, so its last swatch is always white.
inline constexpr std::array<SuggestingEditor, 5> suggestingEditors{{{"text", 5, false},
                                                                    {"music", 5, true},
                                                                    {"battery", 4, true},
                                                                    {"weather", 5, true},
                                                                    {"clock", 5, true}}};

/// Nothing for a family without an editor of colours.
std::optional<SuggestingEditor> suggestingEditor(std::string_view family);

class SuggestedColours final {
 public:
  static constexpr std::string_view heading = "Suggested Colours";
  static constexpr std::string_view hint =
      "You can use the colour picker to select these Suggested Colours";
  static constexpr std::string_view hintSymbol = "eyedropper.halffull";
  static constexpr std::size_t swatches = 5;

  /// Adds five swatches, white ones where the palette has fewer colours. An image without a palette
  /// adds none and leaves `loaded` as it is.
  void workOut(const Image& screenshot, std::int64_t coloursAsked);

  bool loaded() const { return loaded_; }
  const std::vector<PlatformColour>& palleteColours() const { return palleteColours_; }

 private:
  bool loaded_ = false;
  std::vector<PlatformColour> palleteColours_;
};

} // namespace vitrelle
