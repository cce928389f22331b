#include "core/families/music/Song.h"

#include "core/platform/FatalError.h"

#include <utility>

namespace vitrelle {

Song::Song(const Platform& platform)
    : Song(platform, platform.musicPlayer.nowPlayingItem().value_or(MediaItem())) {}

Song::Song(const Platform& platform, const MediaItem& item)
    : playingState(platform.musicPlayer.playbackState()),
      title(item.title.value_or("Unknown Title")),
      albumTitle(item.albumTitle.value_or("Unknown Album")),
      artist(item.artist.value_or("Unknown Artist")) {
  if (item.artwork) artwork = item.artwork->image(item.artwork->bounds);
}

Subscription onNowPlaying(const Platform& platform, std::function<void(const Song&)> subscriber) {
  return platform.musicPlayer.onNowPlayingItemChange(
      [&platform, subscriber = std::move(subscriber)] {
        const std::optional<MediaItem> item = platform.musicPlayer.nowPlayingItem();
        if (!item) fatalError("the music player has changed to no item");
        subscriber(Song(platform, *item));
      });
}

Subscription follow(const Platform& platform, Song& observed) {
  return onNowPlaying(platform, [&platform, &observed](const Song& song) {
    platform.debugConsole.print("Received publisher");
    observed.playingState = song.playingState;
    observed.title = song.title;
    observed.artist = song.artist;
    observed.albumTitle = song.albumTitle;
    observed.artwork = song.artwork;
    observed.objectWillChange.notify();
  });
}

} // namespace vitrelle
