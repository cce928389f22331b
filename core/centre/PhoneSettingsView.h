// The screen on which the user says which phone he has and how it is set. What is changed here
// holds at once.
#pragma once

#include "core/platform/Platform.h"
#include "core/platform/Screen.h"
#include "core/slicing/PhoneChoices.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vitrelle {

/// Whether each of the words, in any order and as far as it was typed, begins one of the name; also
/// where the blanks between them are missing, as in "iphone15".
bool hasWords(std::string_view name, std::string_view words);

/// A phone in the list.
struct PhoneLine {
  std::string name;
  std::string identifier;
  /// Under the system that it would be taken to have.
  MeasuredDisplays measured = MeasuredDisplays::none;
  bool os18 = false; ///< the generation of that system
  bool chosen = false;
  bool operator==(const PhoneLine&) const = default;
};

class PhoneSettingsView final : public Screen {
 public:
  /// The platform must outlive it.
  explicit PhoneSettingsView(const Platform& platform);

  const PhoneChoice& choice() const { return choice_; }
  /// Of the phone that is chosen; its identifier where no table knows it.
  std::string name() const;
  /// Under the system that is set.
  MeasuredDisplays measured() const;
  bool isOs18() const { return vitrelle::isOs18(choice_.os); }
  /// The setting is shown where the phone has it, or is said to be in it all the same.
  bool hasZoom() const;

  /// The words of the search, as they are typed.
  void search(std::string words);
  const std::string& words() const { return words_; }
  /// The phones with these words: the shortest names first where there are words. Without any the
  /// newest first, and a chosen one that is in no list of phones before all.
  const std::vector<PhoneLine>& phones() const { return phones_; }
  /// Makes one of these the phone. Its system becomes the other generation where it never had the
  /// one that is set, and its display a standard one where it can't zoom.
  void pick(std::size_t index);

  /// A version that the phone already had in that generation comes back.
  void setOs18(bool os18);
  void setZoomed(bool zoomed);
  void setAppearance(AppearanceChoice appearance);

  /// Why the last change is not kept.
  const std::optional<Failure>& trouble() const { return trouble_; }

 private:
  void take(const PhoneChoice& choice);
  void list();
  void save(const PhoneChoice& choice);

  const Platform& platform_;
  const std::vector<PhoneModel> models_;
  PhoneChoice choice_;
  OsVersion before18_ = osBefore18;
  OsVersion from18_ = firstOs18;
  std::string words_;
  std::vector<PhoneLine> phones_;
  std::optional<Failure> trouble_;
  Subscription choices_; ///< last, for it calls this screen
};

} // namespace vitrelle
