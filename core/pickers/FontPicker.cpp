#include "core/pickers/FontPicker.h"

#include "core/platform/FatalError.h"
#include "core/store/GroupStore.h"

#include <algorithm>

namespace vitrelle {

namespace {

constexpr std::int64_t usualSize = 18;

char lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

} // namespace

std::vector<FontFamily> fontFamilies(const Fonts& fonts, std::string_view words) {
  std::vector<FontFamily> families = fonts.families();
  std::erase_if(families, [&](const FontFamily& family) {
    const auto found =
        std::search(family.name.begin(), family.name.end(), words.begin(), words.end(),
                    [](char a, char b) { return lower(a) == lower(b); });
    return found == family.name.end() && !words.empty();
  });
  return families;
}

const StoredFont& storedFont(std::string_view screen) {
  const auto* found = std::ranges::find(storedFonts, screen, &StoredFont::screen);
  if (found == storedFonts.end()) fatalError("no font picker " + std::string(screen));
  return *found;
}

std::string StoredFontPicker::fontPicked() const {
  return GroupStore(platform_).valueOrDefault(font_.name);
}

void StoredFontPicker::didPickFont(const std::optional<FontDescriptor>& selected) const {
  if (!selected) return;
  const GroupStore store(platform_);
  const std::int64_t size = store.value(font_.size).value_or(usualSize);
  store.set(font_.name, selected->postScriptName);
  platform_.widgetCenter.reloadAllTimelines();
  platform_.debugConsole.print(selected->postScriptName + " " + std::to_string(size) + ".0");
  dismiss_();
}

void ModernFontPicker::didPickFont(const std::optional<FontDescriptor>& selected) const {
  if (!selected) return;
  fontPicked_(selected->postScriptName);
  dismiss_();
}

} // namespace vitrelle
