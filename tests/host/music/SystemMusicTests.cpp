// The music of a desktop over a bus of its own, with stand-ins for its players.
#include "host/music/SystemMusic.h"

#include "tests/host/music/FakePlayer.h"
#include "tests/support/PrivateBus.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

namespace vitrelle::host {
namespace {

using test::metadata;
using test::playing;

const QString status = QStringLiteral("PlaybackStatus");
const QVariantMap paused{{status, QStringLiteral("Paused")}};
const QVariantMap resumed{{status, QStringLiteral("Playing")}};

class SystemMusicTest : public testing::Test {
 protected:
  MusicPlayer musicOn(const QDBusConnection& connection) {
    return makeMusicPlayer({.bus = [connection] { return connection; },
                            .playerPatience = patience,
                            .firstPatience = firstPatience,
                            .openApplication = [] { return false; }});
  }
  void listen() {
    music = musicOn(bus.connect(QStringLiteral("own")));
    changes = music.onNowPlayingItemChange([this] { told.push_back(now()); });
  }
  /// "1 Gymnopédie by Satie"; "-" in the place of what is not known.
  std::string now() const {
    const auto item = music.nowPlayingItem();
    if (!item) return std::to_string(music.playbackState()) + " nothing";
    return std::to_string(music.playbackState()) + " " + item->title.value_or("-") + " by " +
           item->artist.value_or("-") + (item->artwork ? " with artwork" : "");
  }
  bool becomes(const std::string& what) {
    const bool came = QTest::qWaitFor([&] { return !told.empty() && told.back() == what; });
    if (!came) ADD_FAILURE() << what << " did not come, but " << now();
    return came;
  }
  /// What is played by one that was started before anybody listened.
  void playOne() {
    one.put(playing(metadata("Gymnopédie")));
    one.start(QStringLiteral("one"));
    listen();
    EXPECT_TRUE(becomes("1 Gymnopédie by Satie"));
  }
  /// The address of a picture of 800 by 400.
  QString cover() const {
    const QString file = folder.filePath(QStringLiteral("cover.png"));
    QImage picture(800, 400, QImage::Format_RGB32);
    picture.fill(Qt::red);
    EXPECT_TRUE(picture.save(file));
    return QStringLiteral("file://") + file;
  }
  bool hasSubscription() const {
    std::optional<bool> answer;
    const Subscription asked = music.currentSubscription([&](bool told) { answer = told; });
    EXPECT_FALSE(answer) << "it answers after it has returned";
    EXPECT_TRUE(QTest::qWaitFor([&] { return answer.has_value(); }));
    return answer.value_or(false);
  }

  std::chrono::milliseconds patience = std::chrono::seconds(10); // a busy machine is slow
  std::chrono::milliseconds firstPatience{0};
  QTemporaryDir folder;
  test::PrivateBus bus;
  test::FakePlayer one{bus.connect(QStringLiteral("one"))};
  test::FakePlayer two{bus.connect(QStringLiteral("two"))};
  MusicPlayer music;
  std::vector<std::string> told;
  Subscription changes; ///< last, for it tells
};

TEST_F(SystemMusicTest, player_isHeardFromItsStartToItsEnd) {
  listen();
  EXPECT_EQ(now(), "0 nothing");
  one.start(QStringLiteral("one"));
  QTest::qWait(50);
  EXPECT_TRUE(told.empty()) << "a player with nothing is no news";
  one.set(playing(metadata("Gymnopédie")));
  EXPECT_TRUE(becomes("1 Gymnopédie by Satie"));
  one.set(paused);
  EXPECT_TRUE(becomes("2 Gymnopédie by Satie"));
  one.set(resumed);
  one.set({{QStringLiteral("Volume"), 0.5}});
  one.set(resumed);
  EXPECT_TRUE(becomes("1 Gymnopédie by Satie"));
  QTest::qWait(50);
  EXPECT_EQ(told.size(), 3U) << "only what is another item or state";
  one.stop(QStringLiteral("one"));
  EXPECT_TRUE(becomes("0 Gymnopédie by Satie")) << "it leaves its last item";
  one.start(QStringLiteral("one"));
  EXPECT_TRUE(becomes("1 Gymnopédie by Satie"));
}

TEST_F(SystemMusicTest, playerThatNamesNothing_leavesAPieceWithoutATitle) {
  listen();
  one.put({{status, QStringLiteral("Playing")}, {QStringLiteral("Metadata"), QVariantMap()}});
  one.start(QStringLiteral("one"));
  EXPECT_TRUE(becomes("1 - by -"));
  one.set({{status, QStringLiteral("Stopped")}});
  EXPECT_TRUE(becomes("0 - by -")) << "a change is told of an item alone";
  one.stop(QStringLiteral("one"));
  QTest::qWait(50);
  EXPECT_EQ(now(), "0 - by -");
}

TEST_F(SystemMusicTest, playerThatIsThere_isAskedOnce) {
  playOne();
  for (int i = 0; i < 5; ++i)
    now();
  QTest::qWait(500);
  EXPECT_EQ(one.questions(), 1);
  EXPECT_EQ(told.size(), 1U);
}

TEST_F(SystemMusicTest, ofSeveral_theOneThatPlaysCountsElseTheLast) {
  playOne();
  two.put(metadata("nothing"));
  two.start(QStringLiteral("two"));
  two.set({{status, QStringLiteral("Paused")},
           {QStringLiteral("Metadata"), metadata("Clair de lune", "Debussy")}});
  QTest::qWait(50);
  EXPECT_EQ(now(), "1 Gymnopédie by Satie") << "it plays";
  two.set(resumed);
  EXPECT_TRUE(becomes("1 Clair de lune by Debussy")) << "of two the last";
  one.set(paused);
  two.set(paused);
  EXPECT_TRUE(becomes("2 Clair de lune by Debussy"));
  one.set({{QStringLiteral("Metadata"), metadata("Gnossienne")}});
  EXPECT_TRUE(becomes("2 Gnossienne by Satie"));
  one.stop(QStringLiteral("one"));
  EXPECT_TRUE(becomes("2 Clair de lune by Debussy"));
}

TEST_F(SystemMusicTest, playerWithTwoNames_isOne) {
  one.put(playing(metadata("Gymnopédie")));
  one.start(QStringLiteral("one"));
  one.start(QStringLiteral("one.instance1"));
  listen();
  EXPECT_TRUE(becomes("1 Gymnopédie by Satie"));
  QTest::qWait(50);
  one.stop(QStringLiteral("one.instance1"));
  QTest::qWait(50);
  EXPECT_EQ(now(), "1 Gymnopédie by Satie");
  one.stop(QStringLiteral("one"));
  EXPECT_TRUE(becomes("0 Gymnopédie by Satie"));
}

TEST_F(SystemMusicTest, metadata_isTakenAsPlayersTellIt) {
  const auto key = [](const char* name) { return QString::fromUtf8(name); };
  const struct {
    const char* what;
    QVariantMap told;
    const char* expected;
  } cases[] = {
      {"several artists",
       {{key("xesam:title"), "A"}, {key("xesam:artist"), QStringList{"B", "", "C"}}},
       "1 A by B, C"},
      {"one that is no list", {{key("xesam:title"), "A"}, {key("xesam:artist"), "B"}}, "1 A by B"},
      {"a file", {{key("xesam:url"), "file:///music/No%20name.ogg"}}, "1 No name by -"},
      {"a stream", {{key("xesam:url"), "http://example.com/stream.mp3"}}, "1 - by -"},
      {"blanks", {{key("xesam:title"), "  "}, {key("xesam:artist"), QStringList()}}, "1 - by -"},
      {"other types",
       {{key("xesam:title"), 7},
        {key("xesam:artist"), QVariantList{1, 2}},
        {key("mpris:artUrl"), QByteArray("x")},
        {key("xesam:album"), true}},
       "1 - by -"}};
  playOne();
  for (const auto& each : cases) {
    one.set(playing(metadata("between")));
    EXPECT_TRUE(becomes("1 between by Satie"));
    one.set(playing(each.told));
    EXPECT_TRUE(becomes(each.expected)) << each.what;
  }
}

TEST_F(SystemMusicTest, nonsense_isSurvived) {
  playOne();
  one.say({});
  one.say({test::FakePlayer::player});
  one.say({test::FakePlayer::player, QStringList(), QVariantMap()});
  one.say({test::FakePlayer::player,
           QVariantMap{{QStringLiteral("Metadata"), 5}, {status, QVariantMap()}}, QStringList()});
  EXPECT_TRUE(becomes("0 Gymnopédie by Satie")) << "nothing that is played";
  one.set({{QStringLiteral("Metadata"), QVariant::fromValue(QVariantList{1})},
           {status, QStringLiteral("Exploding")}});
  one.set(playing(metadata("Gnossienne")));
  EXPECT_TRUE(becomes("1 Gnossienne by Satie"));
}

TEST_F(SystemMusicTest, changeWithoutAValue_isAskedFor) {
  playOne();
  one.change({{QStringLiteral("Metadata"), metadata("Gnossienne")}});
  EXPECT_TRUE(becomes("1 Gnossienne by Satie"));
}

TEST_F(SystemMusicTest, silentPlayer_hidesNobodyAndIsHeardWhenItSpeaks) {
  patience = std::chrono::milliseconds(100);
  two.beSilent(true);
  two.put(playing(metadata("Clair de lune", "Debussy")));
  two.start(QStringLiteral("two"));
  playOne();
  QTest::qWait(200);
  two.beSilent(false);
  two.set(resumed);
  EXPECT_TRUE(becomes("1 Clair de lune by Debussy"));
}

TEST_F(SystemMusicTest, artwork_comesAsASecondChange) {
  playOne();
  one.set(playing(metadata("Gnossienne", "Satie", cover())));
  EXPECT_TRUE(becomes("1 Gnossienne by Satie with artwork"));
  EXPECT_EQ(told[1], "1 Gnossienne by Satie");
  const Artwork artwork = *music.nowPlayingItem()->artwork;
  EXPECT_EQ(artwork.bounds, (PointSize{600, 300}));
  EXPECT_EQ(artwork.image(artwork.bounds)->size(), (PixelSize{600, 300}));
  one.set(paused);
  EXPECT_TRUE(becomes("2 Gnossienne by Satie with artwork"));
  EXPECT_EQ(told.size(), 4U);
  one.set(playing(metadata("Gymnopédie", "Satie", QStringLiteral("file:///no/such"))));
  EXPECT_TRUE(becomes("1 Gymnopédie by Satie")) << "the last one's does not stay";
}

TEST_F(SystemMusicTest, firstQuestion_waitsInProgramsThatEndAtOnce) {
  firstPatience = std::chrono::seconds(20);
  QElapsedTimer timer;
  timer.start();
  music = musicOn(bus.connect(QStringLiteral("own")));
  EXPECT_EQ(now(), "0 nothing") << "nobody is there to be waited for";
  one.put(playing(metadata("Gymnopédie", "Satie", cover())));
  one.start(QStringLiteral("one"));
  music = musicOn(bus.connect(QStringLiteral("another")));
  EXPECT_EQ(now(), "1 Gymnopédie by Satie with artwork");
  EXPECT_LT(timer.elapsed(), 15'000) << "no longer than it must";

  two.beSilent(true);
  two.start(QStringLiteral("two"));
  firstPatience = std::chrono::milliseconds(200);
  music = musicOn(bus.connect(QStringLiteral("a third")));
  timer.restart();
  EXPECT_EQ(now(), "1 Gymnopédie by Satie with artwork");
  EXPECT_LT(timer.elapsed(), 5000);
}

TEST_F(SystemMusicTest, subscription_isAPlayerThatIsThereOrCanBeStarted) {
  listen();
  EXPECT_FALSE(hasSubscription());
  one.start(QStringLiteral("one"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return hasSubscription(); }));
  one.stop(QStringLiteral("one"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return !hasSubscription(); }));
  QFile service(bus.servicesFolder() + QStringLiteral("/player.service"));
  ASSERT_TRUE(service.open(QIODevice::WriteOnly));
  service.write("[D-BUS Service]\nName=org.mpris.MediaPlayer2.lazy\nExec=/bin/false\n");
  service.close();
  EXPECT_TRUE(QTest::qWaitFor([&] { return hasSubscription(); })) << "the bus watches the folder";
}

TEST_F(SystemMusicTest, answers_comeAfterTheQuestionAndNotOnceItIsDropped) {
  listen();
  int answers = 0;
  Subscription access = music.requestAuthorization([&] { ++answers; });
  EXPECT_EQ(answers, 0);
  EXPECT_TRUE(QTest::qWaitFor([&] { return answers == 1; }));
  Subscription dropped = music.requestAuthorization([&] { ++answers; });
  Subscription droppedToo = music.currentSubscription([&](bool) { ++answers; });
  dropped.cancel();
  droppedToo.cancel();
  Subscription own;
  own = music.currentSubscription([&](bool) {
    ++answers;
    own.cancel();
  });
  QTest::qWait(100);
  EXPECT_EQ(answers, 2);
}

TEST_F(SystemMusicTest, withoutABus_thereIsNoMusicAndNothingToWaitFor) {
  firstPatience = std::chrono::seconds(10);
  for (const QDBusConnection& none :
       {QDBusConnection(QStringLiteral("unknown")),
        QDBusConnection::connectToBus(QStringLiteral("unix:path=/nowhere"),
                                      QStringLiteral("none"))}) {
    music = musicOn(none);
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(now(), "0 nothing");
    EXPECT_FALSE(hasSubscription());
    EXPECT_LT(timer.elapsed(), 5000);
    EXPECT_FALSE(music.presentOffer());
  }
}

} // namespace
} // namespace vitrelle::host

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const QCoreApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
