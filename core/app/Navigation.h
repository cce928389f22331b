// Where the user is: the screens that stand on one another, the root's at the bottom. What draws
// them follows.
#pragma once

#include "core/platform/Screen.h"
#include "core/store/Numbers.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vitrelle {

/// One screen that is open.
struct OpenScreen {
  std::string name;                 ///< type name
  std::optional<StyleNumber> style; ///< the wallpaper style that it is about, if it is about one
  std::uint64_t ticket = 0;         ///< no two that are opened have the same

  bool operator==(const OpenScreen&) const = default;
};

class Navigation final : public Screen {
 public:
  static constexpr std::string_view root = "ModernContentView";
  static constexpr std::string_view newStyle = "ModernNewLightDark";
  static constexpr std::string_view changeStyle = "ModernChangeLightDark";

  /// From the root, which is never left; the last is shown.
  const std::vector<OpenScreen>& screens() const { return screens_; }
  void open(std::string_view name, std::optional<StyleNumber> style = std::nullopt);
  /// Back to the topmost screen of that name; without one it is opened.
  void reveal(std::string_view name);
  /// Back to the screen before.
  void back();

 private:
  std::vector<OpenScreen> screens_{{.name = std::string(root), .style = std::nullopt}};
  std::uint64_t tickets_ = 0;
};

} // namespace vitrelle
