// The automation action that changes the wallpaper style in use. It runs without the application's
// window, in whichever process is asked for it.
#pragma once

#include "core/platform/Platform.h"

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace vitrelle {

/// The names that the action offers for its parameter.
class ViewStringOptionsProvider final {
 public:
  explicit ViewStringOptionsProvider(const Platform& platform) : platform_(platform) {}

  /// "Style 1" up to the count of styles, as far as styles are listed. Without any style a fatal
  /// error.
  std::vector<std::string> results() const;

 private:
  const Platform& platform_;
};

class ChangeVitrelleConfigIntent final {
 public:
  explicit ChangeVitrelleConfigIntent(const Platform& platform) : platform_(platform) {}

  static constexpr std::string_view title = "Change Vitrelle Style";
  static constexpr std::string_view parameterTitle = "Select Vitrelle Style";
  static constexpr bool openAppWhenRun = false;

  /// Nothing was done: the user has to be asked first.
  struct NeedsValue {
    std::string_view dialog = "What Style would you like to use?";
  };
  struct Done {
    std::string_view value = "Success";
  };

  /// The number in the text, from 1, is taken without a look at how many styles there are; a text
  /// that is no number chooses style -1, which none has.
  std::variant<NeedsValue, Done> perform(const std::optional<std::string>& style) const;

 private:
  const Platform& platform_;
};

/// What is offered to automations without any setting up.
struct VitrelleShortcuts {
  static constexpr std::string_view phrase = ChangeVitrelleConfigIntent::title;
};

} // namespace vitrelle
