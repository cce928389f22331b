// The music that plays on this device, and whether the user has any.
#pragma once

#include "core/platform/Geometry.h"
#include "core/platform/Image.h"
#include "core/platform/Subscription.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace vitrelle {

/// The picture of an album.
struct Artwork {
  PointSize bounds = {};
  /// The picture for a size; nothing where it can't be made.
  std::function<std::optional<Image>(const PointSize& size)> image;
};

/// What is played. UTF-8; what is not known is absent.
struct MediaItem {
  std::optional<std::string> title = std::nullopt;
  std::optional<std::string> albumTitle = std::nullopt;
  std::optional<std::string> artist = std::nullopt;
  std::optional<Artwork> artwork = std::nullopt;
};

/// As the platform numbers them.
namespace playback {
inline constexpr std::int64_t stopped = 0;
inline constexpr std::int64_t playing = 1;
inline constexpr std::int64_t paused = 2;
inline constexpr std::int64_t interrupted = 3;
inline constexpr std::int64_t seekingForward = 4;
inline constexpr std::int64_t seekingBackward = 5;
} // namespace playback

struct MusicPlayer {
  std::function<std::optional<MediaItem>()> nowPlayingItem;
  std::function<std::int64_t()> playbackState;
  /// Calls when another item, or another state of it, has come, and never while there is no item: a
  /// player that goes leaves its last one, stopped. Not called with the present one.
  std::function<Subscription(std::function<void()> subscriber)> onNowPlayingItemChange;

  /// Both answer on the main thread, after they have returned; never once the subscription has
  /// ended.
  std::function<Subscription(std::function<void()> completion)> requestAuthorization;
  std::function<Subscription(std::function<void(bool canPlayCatalogContent)> completion)>
      currentSubscription;
  /// Shows how to come by music; false where there is nothing to show.
  std::function<bool()> presentOffer;
};

} // namespace vitrelle
