// The music of this desktop: what any player on the session's bus plays.
#pragma once

#include "core/platform/Platform.h"
#include "host/music/Artwork.h"

#include <QDBusConnection>

#include <chrono>
#include <functional>

namespace vitrelle::host {

struct MusicSources {
  /// That the players are on; asked for when music is asked for first.
  std::function<QDBusConnection()> bus;
  /// For the answers of a player.
  std::chrono::milliseconds playerPatience{5'000};
  /// How long the first question for what is played waits for answers and the artwork. Nothing else
  /// of the event loop's may happen meanwhile that its caller would not like: for programs that
  /// end at once. Others are told by the changes.
  std::chrono::milliseconds firstPatience{0};
  ArtworkLimits artwork = {};
  std::function<bool()> openApplication; ///< that plays music; false where there is none
};

/// Needs a QCoreApplication for as long as it is used, and its event loop.
MusicPlayer makeMusicPlayer(MusicSources sources);

/// Puts the desktop's music into a platform.
void useMusic(Platform& platform);
/// The same in a program that ends at once.
void useMusicAtOnce(Platform& platform);

} // namespace vitrelle::host
