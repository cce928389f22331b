#include "core/families/music/NowPlayingView.h"

#include <utility>
#include <vector>

namespace vitrelle {

namespace {

constexpr PlatformColour white{1, 1, 1, 1};
constexpr int semibold = 600;
constexpr double cornerRadius = 10;
/// Between the parts of the small layout, points: with more, three lines of words under the artwork
/// would not fit into a small widget.
constexpr double smallSpacing = 2;

View notPlaying() {
  return text("Not Playing", {.weight = semibold}, white);
}

View artwork(const Song& song, double side) {
  if (!song.artwork) return symbol("app", side, white);
  return framed(picture(*song.artwork, cornerRadius), side, side);
}

/// How the words of a song are written.
struct Lines {
  Font title;
  Font album;
  Font artist;
  TextAlignment alignment;
};

std::vector<View> lines(const NowPlayingFields& fields, const Song& song, const Lines& looks) {
  const auto line = [&](const std::string& words, const Font& font, const PlatformColour& colour) {
    return text(words, font, colour, looks.alignment);
  };
  std::vector<View> lines{line(song.title, looks.title, fields.colourOfSongName)};
  if (fields.showAlbumName)
    lines.push_back(line(song.albumTitle, looks.album, fields.colourOfAlbumName));
  if (fields.showArtistName)
    lines.push_back(line(song.artist, looks.artist, fields.colourOfArtistName));
  return lines;
}

} // namespace

View NowPlayingView::view(const Song& currentAppleMusicSong) const {
  const Song& song = currentAppleMusicSong;
  if (!song.isPlaying()) return notPlaying();
  std::vector<View> row;
  if (showAlbumArt) row.push_back(artwork(song, artworkSide));
  row.push_back(vstack(lines(*this, song,
                             {.title = {.size = 18, .weight = semibold},
                              .album = {.size = 14, .weight = semibold},
                              .artist = {.size = 14},
                              .alignment = TextAlignment::leading}),
                       Place::start));
  return hstack(std::move(row));
}

View SmallNowPlaying::view(const Song& currentAppleMusicSong, double screenWidth) const {
  const Song& song = currentAppleMusicSong;
  if (!song.isPlaying()) return notPlaying();
  const Font font{.size = 12, .weight = semibold};
  std::vector<View> column = lines(*this, song, {font, font, font, TextAlignment::centre});
  if (showAlbumArt) column.insert(column.begin(), artwork(song, screenWidth * 0.25));
  return vstack(std::move(column), Place::centre, smallSpacing);
}

} // namespace vitrelle
