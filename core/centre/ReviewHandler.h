// Decides when the store's request to rate the application is made.
#pragma once

#include "core/platform/Platform.h"

namespace vitrelle {

class ReviewHandler final {
 public:
  ReviewHandler() = delete;

  static constexpr std::int64_t fewestAppearances = 4;
  static constexpr double requestDelaySeconds = 2;
  static constexpr double pauseSeconds = 60.0 * 24 * 60 * 60;

  /// Once for each appearance of the widget centre: counts it, and has the request made a moment
  /// later where it is due. The request is made even if the screen has gone by then, as long as the
  /// platform lives. More appearances than can be counted are a fatal error.
  static void check(const Platform& platform);
  /// Asks on the scene in the foreground, if there is one, and lets the next request be due after
  /// the pause in either case.
  static void request(const Platform& platform);
};

} // namespace vitrelle
