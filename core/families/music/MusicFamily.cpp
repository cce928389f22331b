#include "core/families/music/MusicFamily.h"

#include "core/families/music/AlphaViewForNowPlaying.h"
#include "core/families/music/NowPlayingView.h"

#include <memory>
#include <utility>

namespace vitrelle {

namespace {

using Record = musicWidgetData;

/// Between words and the edges of a widget, points.
constexpr Insets besides{.leading = 8, .trailing = 8};

/// What the system's screens leave free around a face on a page of the preview, points.
double pageInset(const Platform& platform) {
  return platform.device.screenBounds().height / 1.5 * 0.125;
}

NowPlayingFields fieldsOf(const Record& style) {
  return {.showAlbumArt = style.musicShowAlbumArt,
          .showAlbumName = style.musicShowAlbumName,
          .showArtistName = style.musicShowArtistName,
          .colourOfSongName = platformColour(style.musicColourOfSongName),
          .colourOfAlbumName = platformColour(style.musicColourOfAlbumName),
          .colourOfArtistName = platformColour(style.musicColourOfArtistName)};
}

/// Stays where it is, for it is observed.
struct FollowedSong {
  FollowedSong(const Platform& platform, std::function<void()> changed)
      : song(platform),
        observation(song.objectWillChange.add(std::move(changed))),
        changes(follow(platform, song)) {}

  Song song;
  Subscription observation;
  Subscription changes; ///< last, for they are written into the song
};

} // namespace

View MusicFamily::face(const Platform& platform, const StyleRecord& record, FaceUse use) const {
  const NowPlayingFields fields = fieldsOf(std::get<Record>(record));
  const Song song(platform);
  switch (use) {
  case FaceUse::gallery:
  case FaceUse::widget:
  case FaceUse::assign: // the system's inset of a page would leave no room in its preview
    return padded(SmallNowPlaying{fields}.view(song, platform.device.screenBounds().width),
                  besides);
  case FaceUse::setup:
  case FaceUse::second:
  case FaceUse::wideWidget:
    return padded(NowPlayingView{fields}.view(song), besides);
  case FaceUse::preview:
    break;
  }
  return NowPlayingView{fields}.view(song);
}

Subscription MusicFamily::live(const Platform& platform, std::function<void()> changed) const {
  return Subscription([followed = std::make_shared<FollowedSong>(
                           platform, std::move(changed))]() mutable { followed.reset(); });
}

PointRect MusicFamily::previewBox(const Platform& platform, const PointSize& page) const {
  const double width = platform.device.screenBounds().width / 1.6;
  return {(page.width - width) / 2, pageInset(platform), width, NowPlayingView::artworkSide};
}

std::unique_ptr<Gate> MusicFamily::gate(const Platform& platform) const {
  return std::make_unique<AlphaViewForNowPlaying>(platform);
}

std::vector<FormRow> MusicFamily::rows(EditorStep step) const {
  if (step == EditorStep::second) {
    const auto well = [](std::string_view title, Colour Record::*field) {
      return rowOver(title, FormControl::colourWell, field);
    };
    return {well("Set Song Name Colour", &Record::musicColourOfSongName),
            well("Set Album Name Colour", &Record::musicColourOfAlbumName),
            well("Set Artist Name Colour", &Record::musicColourOfArtistName)};
  }
  return {note("rectangle.on.rectangle",
               "All Music Widget Styles will change depending on Widget Size, you can see this in "
               "the Preview Tab."),
          rowOver("Show Album Art", FormControl::toggle, &Record::musicShowAlbumArt),
          rowOver("Show Album Name", FormControl::toggle, &Record::musicShowAlbumName),
          rowOver("Show Artist Name", FormControl::toggle, &Record::musicShowArtistName)};
}

void MusicFamily::copy(EditorStep step, const StyleDraft& from, StyleRecord& to) const {
  const auto& draft = std::get<Record>(from.record);
  auto& style = std::get<Record>(to);
  if (step == EditorStep::second) {
    style.musicColourOfSongName = draft.musicColourOfSongName;
    style.musicColourOfAlbumName = draft.musicColourOfAlbumName;
    style.musicColourOfArtistName = draft.musicColourOfArtistName;
    return;
  }
  style.musicShowAlbumArt = draft.musicShowAlbumArt;
  style.musicShowAlbumName = draft.musicShowAlbumName;
  style.musicShowArtistName = draft.musicShowArtistName;
}

} // namespace vitrelle
