// What the system's music player plays, in the words that the Music family shows.
#pragma once

#include "core/platform/Platform.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace vitrelle {

/// An observed object: those who show one keep it, and its fields change.
class Song final {
 public:
  /// Of the player's present item.
  explicit Song(const Platform& platform);
  /// Of this item, in the player's present state.
  Song(const Platform& platform, const MediaItem& item);
  Song(const Song&) = delete;
  Song& operator=(const Song&) = delete;

  bool isPlaying() const { return playingState == playback::playing; }

  Subscribers<> objectWillChange; ///< told by hand, after a change
  std::int64_t playingState = playback::stopped;
  std::string title;
  std::string albumTitle;
  std::string artist;
  std::optional<Image> artwork; ///< as large as it is
};

/// Calls with a new song at each change that the player tells of. The player tells of none while
/// it has no item: that ends the program. The platform must outlive the subscription.
Subscription onNowPlaying(const Platform& platform, std::function<void(const Song&)> subscriber);

/// Takes each of these over into a song, and tells its observers. Both must outlive the
/// subscription.
Subscription follow(const Platform& platform, Song& observed);

} // namespace vitrelle
