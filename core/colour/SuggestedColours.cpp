#include "core/colour/SuggestedColours.h"

#include <algorithm>

namespace vitrelle {

std::optional<SuggestingEditor> suggestingEditor(std::string_view family) {
  const auto* const found = std::ranges::find(suggestingEditors, family, &SuggestingEditor::family);
  if (found == suggestingEditors.end()) return std::nullopt;
  return *found;
}

void SuggestedColours::workOut(const Image& screenshot, std::int64_t coloursAsked) {
  const auto palette = ColorThief::palette(screenshot, coloursAsked, 1, true);
  if (!palette || palette->empty()) return;
  for (std::size_t i = 0; i < swatches; ++i) {
    palleteColours_.push_back(i < palette->size() ? (*palette)[i].platformColour()
                                                  : PlatformColour{1, 1, 1, 1});
  }
  loaded_ = true;
}

} // namespace vitrelle
