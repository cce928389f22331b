// The ways into the running application: its start, and the links that reach it.
#pragma once

#include "core/app/Link.h"
#include "core/platform/Platform.h"
#include "core/slicing/ActiveSheet.h"

#include <optional>
#include <span>
#include <string_view>

namespace vitrelle {

/// What a link for help is passed on as, and under which key it holds the number of its sheet.
inline constexpr std::string_view deeplinkNotification = "notification_name";
inline constexpr std::string_view deeplinkKey = "deeplink";

/// Stands for the links' handler by its name; what a link does is the delegate's.
class DeeplinkHandler final {};

/// The help that a link with the host "support" asks for; `invalid` for an unknown topic.
ActiveSheet supportSheet(std::string_view lastPathComponent);

class AppDelegate final {
 public:
  explicit AppDelegate(const Platform& platform) : platform_(platform) {}

  /// Always true: the start goes on.
  bool didFinishLaunching() const;
  static constexpr std::string_view sceneConfiguration = "Default Configuration";

 private:
  const Platform& platform_;
};

class SceneDelegate final {
 public:
  explicit SceneDelegate(const Platform& platform) : platform_(platform) {}

  /// The start, before the root screen is built. Of links only a tap on a widget counts.
  void willConnect(std::span<const Link> links) const;
  /// Links while running; one of them is taken.
  void openLinks(std::span<const Link> links) const;

 private:
  void openWidgetTap(const Link& link) const;

  const Platform& platform_;
};

} // namespace vitrelle
