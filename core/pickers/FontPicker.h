// The ways in which a font is picked: some write a key of the group store, one writes what its
// owner hands it.
#pragma once

#include "core/platform/Platform.h"
#include "core/store/Keys.h"

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vitrelle {

/// What the list gives when it closes with a choice.
using FontDescriptor = FontFamily;

/// The families whose names hold the words, in any case of A to Z; all of them for no words.
std::vector<FontFamily> fontFamilies(const Fonts& fonts, std::string_view words);

/// Where a fixed picker keeps its choice.
struct StoredFont {
  std::string_view screen; ///< its type name
  Key<std::string> name;
  Key<std::int64_t> size; ///< only printed; 18 where it is absent
};
inline constexpr std::array<StoredFont, 3> storedFonts{
    {{"FontPicker", keys::fontPicked, keys::fontSize},
     {"DateFontPicker", keys::dateFontPicked, keys::dateFontSize},
     {"TimeFontPicker", keys::timeFontPicked, keys::timeFontSize}}};
/// By the picker's type name; one that none has is a fatal error.
const StoredFont& storedFont(std::string_view screen);

/// Writes the PostScript name under its key and reloads the widgets. Without a descriptor nothing
/// happens at all.
class StoredFontPicker final {
 public:
  StoredFontPicker(const Platform& platform, const StoredFont& font, std::function<void()> dismiss)
      : platform_(platform), font_(font), dismiss_(std::move(dismiss)) {}

  /// The name that is stored; empty where none is.
  std::string fontPicked() const;
  void didPickFont(const std::optional<FontDescriptor>& selected) const;

 private:
  const Platform& platform_;
  StoredFont font_;
  std::function<void()> dismiss_;
};

/// Writes no store: whoever owns the form saves the name with the rest of it.
class ModernFontPicker final {
 public:
  static constexpr std::string_view heading = "Currently Selected:";
  static constexpr std::string_view closeSymbol = "xmark.circle.fill";

  ModernFontPicker(std::function<void(const std::string&)> fontPicked,
                   std::function<void()> dismiss)
      : fontPicked_(std::move(fontPicked)), dismiss_(std::move(dismiss)) {}

  void didPickFont(const std::optional<FontDescriptor>& selected) const;

 private:
  std::function<void(const std::string&)> fontPicked_;
  std::function<void()> dismiss_;
};

} // namespace vitrelle
