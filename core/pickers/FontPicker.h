// The ways in which a font is picked: some write a key of the group store, one writes what its
// owner hands it.
#pragma once

#include "core/platform/Platform.h"
#include "core/store/Keys.h"

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

/// Writes the PostScript name under its key and reloads the widgets. Without a descriptor nothing
/// happens at all.
class StoredFontPicker {
 public:
  StoredFontPicker(const Platform& platform, const Key<std::string>& name,
                   const Key<std::int64_t>& size, std::function<void()> dismiss)
      : platform_(platform), name_(name), size_(size), dismiss_(std::move(dismiss)) {}

  void didPickFont(const std::optional<FontDescriptor>& selected) const;

 private:
  const Platform& platform_;
  Key<std::string> name_;
  Key<std::int64_t> size_; ///< only printed; 18 where it is absent
  std::function<void()> dismiss_;
};

class FontPicker final : public StoredFontPicker {
 public:
  FontPicker(const Platform& platform, std::function<void()> dismiss)
      : StoredFontPicker(platform, keys::fontPicked, keys::fontSize, std::move(dismiss)) {}
};

class DateFontPicker final : public StoredFontPicker {
 public:
  DateFontPicker(const Platform& platform, std::function<void()> dismiss)
      : StoredFontPicker(platform, keys::dateFontPicked, keys::dateFontSize, std::move(dismiss)) {}
};

class TimeFontPicker final : public StoredFontPicker {
 public:
  TimeFontPicker(const Platform& platform, std::function<void()> dismiss)
      : StoredFontPicker(platform, keys::timeFontPicked, keys::timeFontSize, std::move(dismiss)) {}
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
