// The screen on which the user settles whether the application may know where the device is, and
// from where it knows. What is changed here holds at once.
#pragma once

#include "core/platform/Platform.h"
#include "core/platform/Screen.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace vitrelle {

class LocationSettingsView final : public Screen {
 public:
  /// How many towns a search shows at most.
  static constexpr std::size_t mostFound = 8;

  /// The platform must outlive it.
  explicit LocationSettingsView(const Platform& platform);

  const LocationChoice& choice() const { return choice_; }
  bool hasDesktopService() const { return platform_.locationSettings.hasDesktopService(); }
  void setPermission(AuthorizationStatus permission);
  /// A place without a town is chosen by picking one.
  void setSource(LocationSource source);

  /// The words of the search, as they are typed.
  void search(std::string words);
  const std::string& words() const { return words_; }
  /// Of the last words that were answered.
  const std::vector<City>& found() const { return found_; }
  /// Whether what is found is of these words, and nothing has that name.
  bool isUnknown() const { return isUnknown_; }
  /// Makes a town that was found the fixed place. Who picks one lets the application know it, if he
  /// was never asked.
  void pick(std::size_t index);

  /// Why the last change is not kept, or a search had no answer.
  const std::optional<Failure>& trouble() const { return trouble_; }

 private:
  void save(const LocationChoice& choice);

  const Platform& platform_;
  LocationChoice choice_;
  std::string words_;
  std::vector<City> found_;
  bool isUnknown_ = false;
  std::optional<Failure> trouble_;
  Subscription asked_;
  Subscription choices_; ///< last, for it calls this screen
};

} // namespace vitrelle
