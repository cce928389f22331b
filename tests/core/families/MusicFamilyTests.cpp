#include "core/families/music/MusicFamily.h"

#include "core/drawing/Describe.h"
#include "core/families/music/Song.h"
#include "core/lifecycle/WidgetLook.h"
#include "tests/core/lifecycle/LifecycleTest.h"

#include <array>
#include <vector>

namespace vitrelle {
namespace {

constexpr std::array allUses{FaceUse::setup,  FaceUse::second,  FaceUse::gallery,
                             FaceUse::assign, FaceUse::preview, FaceUse::widget};

class MusicFamilyTest : public test::LifecycleTest {
 protected:
  /// A piece whose artwork of 300 by 200 is as large as it is asked for.
  MediaItem piece() {
    return {.title = "Gymnopédie",
            .albumTitle = "Piano",
            .artist = "Satie",
            .artwork = Artwork{.bounds = {300, 200}, .image = [this](const PointSize& size) {
                                 asked.push_back(size);
                                 return std::optional(
                                     test::positionImage(static_cast<std::int32_t>(size.width),
                                                         static_cast<std::int32_t>(size.height)));
                               }}};
  }
  std::string drawn(const musicWidgetData& record, FaceUse use, const PointSize& frame) {
    return describe(widgetFace(platform, family, record, frame, use));
  }
  std::string small(const musicWidgetData& record) {
    return drawn(record, FaceUse::widget, {158, 158});
  }
  std::string medium(const musicWidgetData& record) {
    return drawn(record, FaceUse::setup, {338, 158});
  }
  std::vector<musicWidgetData> stored() const {
    return GroupStore(platform).loadRecords(families::music);
  }

  const StyleFamily& family = styleFamily("music");
  std::vector<PointSize> asked;
};

TEST_F(MusicFamilyTest, song_fallsBackFieldByField) {
  const struct {
    const char* what;
    std::optional<MediaItem> item;
    std::array<const char*, 3> words;
  } cases[] = {
      {"nothing", std::nullopt, {"Unknown Title", "Unknown Album", "Unknown Artist"}},
      {"no album", MediaItem{.title = "Aria", .artist = "Bach"}, {"Aria", "Unknown Album", "Bach"}},
      {"album alone",
       MediaItem{.albumTitle = "Piano"},
       {"Unknown Title", "Piano", "Unknown Artist"}}};
  for (const auto& one : cases) {
    music.item = one.item;
    const Song song(platform);
    EXPECT_EQ((std::array{song.title, song.albumTitle, song.artist}),
              (std::array<std::string, 3>{one.words[0], one.words[1], one.words[2]}))
        << one.what;
    EXPECT_FALSE(song.artwork) << one.what;
    EXPECT_EQ(song.playingState, playback::stopped);
  }
}

TEST_F(MusicFamilyTest, artwork_isAskedForAtItsOwnSize) {
  music.play(piece(), playback::seekingForward);
  const Song song(platform);
  EXPECT_EQ(song.playingState, 4);
  EXPECT_EQ(song.artwork->size(), (PixelSize{300, 200}));
  MediaItem empty = piece();
  empty.artwork->bounds = {0, 0};
  empty.artwork->image = [this](const PointSize& size) {
    asked.push_back(size);
    return std::optional<Image>();
  };
  EXPECT_FALSE(Song(platform, empty).artwork);
  EXPECT_EQ(asked, (std::vector<PointSize>{{300, 200}, {0, 0}}));
}

TEST_F(MusicFamilyTest, observedSong_keepsItsIdentityAndTellsOfEachChange) {
  Song song(platform);
  std::vector<std::string> titles; // at the time that observers were told
  const Subscription view = song.objectWillChange.add([&] { titles.push_back(song.title); });
  Subscription following = follow(platform, song);
  EXPECT_TRUE(titles.empty());
  music.play(piece());
  EXPECT_EQ(titles, std::vector<std::string>{"Gymnopédie"});
  EXPECT_TRUE(song.isPlaying());
  EXPECT_TRUE(song.artwork);
  music.play({.title = "Gnossienne"}, playback::paused);
  EXPECT_EQ(song.albumTitle, "Unknown Album");
  EXPECT_EQ(song.playingState, playback::paused);
  EXPECT_FALSE(song.artwork) << "the last one's does not stay";
  EXPECT_EQ(console.lines, (std::vector<std::string>{"Received publisher", "Received publisher"}));
  following.cancel();
  music.play(piece());
  EXPECT_EQ(titles.size(), 2U);
  EXPECT_EQ(song.title, "Gnossienne");
}

TEST_F(MusicFamilyTest, changeWithoutAnItem_endsTheProgram) {
  Song song(platform);
  const Subscription following = follow(platform, song);
  EXPECT_DEATH(music.notify(), "no item");
}

TEST_F(MusicFamilyTest, whatDoesNotPlay_isNotShown) {
  music.item = piece();
  for (const std::int64_t state : {playback::stopped, playback::paused, playback::interrupted,
                                   playback::seekingForward, std::int64_t{-1}}) {
    music.state = state;
    for (const FaceUse use : allUses) {
      const std::string list = drawn({.musicShowAlbumArt = false}, use, {338, 158});
      EXPECT_TRUE(list.starts_with("text \"Not Playing\"")) << list;
      EXPECT_EQ(list.find('\n'), list.size() - 1) << "nothing else: " << list;
    }
  }
}

TEST_F(MusicFamilyTest, layouts_areThoseOfTheWidgetsSize) {
  music.play({.title = "Aria", .albumTitle = "Album", .artist = "Bach"});
  const musicWidgetData style{.musicColourOfSongName = {1, 0, 0},
                              .musicColourOfAlbumName = {0, 1, 0},
                              .musicColourOfArtistName = {0, 0, 1}};
  EXPECT_EQ(small(style), "symbol \"app\" FFFFFF at 29.875 8.875 size 98.25 98.25\n"
                          "text \"Aria\" in \"\" 12 weight 600 centred FF0000 at 67 109.125 size "
                          "24 12 room 142 17.917\n"
                          "text \"Album\" in \"\" 12 weight 600 centred 00FF00 at 64 123.125 size "
                          "30 12 room 142 20.875\n"
                          "text \"Bach\" in \"\" 12 weight 600 centred 0000FF at 67 137.125 size "
                          "24 12 room 142 29.75\n");
  EXPECT_EQ(medium(style), "symbol \"app\" FFFFFF at 92 24 size 110 110\n"
                           "text \"Aria\" in \"\" 18 weight 600 FF0000 at 210 48 size 36 18 "
                           "room 204 47.333\n"
                           "text \"Album\" in \"\" 14 weight 600 00FF00 at 210 74 size 35 14 "
                           "room 204 62\n"
                           "text \"Bach\" in \"\" 14 0000FF at 210 96 size 28 14 room 204 110\n");
}

TEST_F(MusicFamilyTest, switches_leaveAllButTheTitleOut) {
  music.play(piece());
  const musicWidgetData bare{
      .musicShowAlbumArt = false, .musicShowAlbumName = false, .musicShowArtistName = false};
  for (const FaceUse use : allUses) {
    const std::string list = drawn(bare, use, {338, 158});
    EXPECT_TRUE(list.starts_with("text \"Gymnopédie\"")) << list;
    EXPECT_EQ(list.find('\n'), list.size() - 1) << list;
  }
  EXPECT_NE(small({.musicShowArtistName = false}).find("image 300 200 at "), std::string::npos);
  EXPECT_EQ(small({.musicShowArtistName = false}).find("Satie"), std::string::npos);
  EXPECT_EQ(medium({.musicShowAlbumName = false}).find("\"Piano\""), std::string::npos);
}

TEST_F(MusicFamilyTest, smallWidget_holdsAllLinesOfLongNames) {
  const std::string endless(300, 'n');
  music.play({.title = endless, .albumTitle = endless, .artist = endless});
  const DisplayList face = widgetFace(platform, family, musicWidgetData{}, {158, 158});
  ASSERT_EQ(face.size(), 4U);
  const auto& last = std::get<DrawnText>(face[3].content);
  EXPECT_LE(last.box.y + last.box.height, 158);
  EXPECT_LE(last.box.x + last.box.width, 150);
}

TEST_F(MusicFamilyTest, screens_areToldOfTheNextSong) {
  GroupStore(platform).saveRecords(families::music, {{}, {.musicConfigTag = 1}});
  StyleGallery gallery(platform, family);
  gallery.appear();
  int changes = 0;
  const Subscription view = gallery.onChange([&] { ++changes; });
  const auto tile = [&](std::size_t i) { return describe(gallery.tiles()[i].face); };
  EXPECT_NE(tile(0).find("Not Playing"), std::string::npos);
  music.play(piece());
  EXPECT_EQ(changes, 1);
  for (const std::size_t i : {0U, 1U})
    EXPECT_NE(tile(i).find("\"Satie\""), std::string::npos);
}

TEST_F(MusicFamilyTest, editor_hasThreeSwitchesAndThreeColours) {
  StyleSetup setup(platform, family, {});
  setup.appear();
  ASSERT_EQ(setup.rows().size(), 4U);
  EXPECT_EQ(setup.rows()[0].row.control, FormControl::note);
  EXPECT_EQ(setup.rows()[3].row.title, "Show Artist Name");
  setup.setValue(0, true); // a note takes nothing
  setup.setValue(3, false);
  EXPECT_EQ(setup.save(), Saved::stored);
  EXPECT_EQ(stored()[0], (musicWidgetData{.musicShowArtistName = false}));
  const auto second = setup.next();
  second->appear();
  ASSERT_EQ(second->rows().size(), 3U) << "also of what is not shown";
  second->setValue(1, Colour{0, 1, 0});
  EXPECT_EQ(second->save(), Saved::stored);
  EXPECT_EQ(stored()[0],
            (musicWidgetData{.musicShowArtistName = false, .musicColourOfAlbumName = {0, 1, 0}}));
}

TEST_F(MusicFamilyTest, preview_isAMediumWidgetInTheMiddleOfThePage) {
  const StylePreview preview(platform, family);
  const PointRect box = preview.widgetBox();
  EXPECT_DOUBLE_EQ(box.width, 393 / 1.6);
  EXPECT_DOUBLE_EQ(box.x, (393 / 1.5 - 393 / 1.6) / 2);
  EXPECT_DOUBLE_EQ(box.y, 852 / 1.5 * 0.125);
}

} // namespace
} // namespace vitrelle
