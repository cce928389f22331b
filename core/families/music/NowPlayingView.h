// The faces of the Music family: what plays, in a small and in a medium widget.
#pragma once

#include "core/drawing/View.h"
#include "core/families/music/Song.h"
#include "core/platform/PlatformColour.h"

namespace vitrelle {

/// What a style tells of either.
struct NowPlayingFields {
  bool showAlbumArt = true;
  bool showAlbumName = true;
  bool showArtistName = true;
  PlatformColour colourOfSongName{1, 1, 1, 1};
  PlatformColour colourOfAlbumName{1, 1, 1, 1};
  PlatformColour colourOfArtistName{1, 1, 1, 1};
};

/// A row. Only the words "Not Playing" while the song does not play.
struct NowPlayingView : NowPlayingFields {
  static constexpr double artworkSide = 110; ///< points

  View view(const Song& currentAppleMusicSong) const;
};

/// A column, else the same.
struct SmallNowPlaying : NowPlayingFields {
  /// The artwork is a quarter as wide as the screen, whose width is in points.
  View view(const Song& currentAppleMusicSong, double screenWidth) const;
};

} // namespace vitrelle
