#include "host/music/SystemMusic.h"

#include "host/music/ArtworkLoader.h"
#include "host/music/MusicApplication.h"
#include "host/music/Players.h"

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QEventLoop>
#include <QFile>
#include <QTimer>

#include <algorithm>
#include <memory>
#include <optional>
#include <utility>

namespace vitrelle::host {

namespace {

class SystemMusic final {
 public:
  explicit SystemMusic(MusicSources sources) : sources_(std::move(sources)) {}

  std::optional<MediaItem> item() {
    awaitFirst();
    if (!hasItem_) return std::nullopt;
    MediaItem item{.title = shown_.title, .albumTitle = shown_.albumTitle, .artist = shown_.artist};
    if (picture_) {
      const PixelSize size = picture_->size();
      item.artwork =
          Artwork{.bounds = {static_cast<double>(size.width), static_cast<double>(size.height)},
                  .image = [image = *picture_](const PointSize&) { return std::optional(image); }};
    }
    return item;
  }
  std::int64_t state() {
    awaitFirst();
    return shown_.state;
  }
  Subscription watch(std::function<void()> subscriber) {
    start();
    return changes_.add(std::move(subscriber));
  }

  static Subscription soon(std::function<void()> completion) {
    auto* timer = new QTimer;
    timer->setSingleShot(true);
    QObject::connect(timer, &QTimer::timeout, timer, std::move(completion));
    timer->start(0);
    return owned(timer);
  }
  Subscription subscription(std::function<void(bool)> completion) {
    start();
    if (!bus_->isConnected()) {
      return soon([completion = std::move(completion)] { completion(false); });
    }
    const QString bus = QStringLiteral("org.freedesktop.DBus");
    auto* watcher = new QDBusPendingCallWatcher(
        bus_->asyncCall(QDBusMessage::createMethodCall(bus, QStringLiteral("/org/freedesktop/DBus"),
                                                       bus, QStringLiteral("ListActivatableNames")),
                        static_cast<int>(sources_.playerPatience.count())));
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher,
                     [this, watcher, completion = std::move(completion)] {
                       // Who is there was asked before, and is known by now.
                       const QDBusPendingReply<QStringList> names = *watcher;
                       completion(players_->any() || (!names.isError() && anyPlayer(names)));
                     });
    return owned(watcher);
  }
  bool offer() const { return sources_.openApplication(); }

 private:
  static bool anyPlayer(const QStringList& names) {
    return std::ranges::any_of(names,
                               [](const QString& name) { return name.startsWith(playerNames); });
  }
  /// Ends with its subscription, which may happen inside its own signal.
  template <class Source>
  static Subscription owned(Source* source) {
    return Subscription([source] {
      source->disconnect();
      source->deleteLater();
    });
  }

  void start() {
    if (players_) return;
    bus_ = sources_.bus();
    artwork_ = std::make_unique<ArtworkLoader>(sources_.artwork, [this] { takePicture(); });
    players_ = std::make_unique<Players>(*bus_, sources_.playerPatience, [this] { takeReport(); });
  }

  void awaitFirst() {
    start();
    if (std::exchange(isAwaited_, true) || sources_.firstPatience.count() == 0) return;
    QEventLoop loop;
    QTimer::singleShot(sources_.firstPatience, &loop, [&loop] { loop.quit(); });
    settled_ = [&loop] { loop.quit(); };
    if (!isSettled()) loop.exec();
    settled_ = {};
  }
  bool isSettled() const { return players_->haveAnswered() && !artwork_->isLoading(); }

  void takeReport() {
    // A player that has gone, or has nothing any more, leaves its last piece.
    PlayerReport next = shown_;
    next.state = playback::stopped;
    const PlayerReport* report = players_->chosen();
    if (report != nullptr && report->hasItem()) next = *report;
    if (next != shown_) {
      const bool isOther = !isSamePiece(next, shown_);
      shown_ = std::move(next);
      hasItem_ = hasItem_ || shown_.hasItem();
      if (isOther) {
        artwork_->show(shown_.artwork);
        picture_ = artwork_->picture();
      }
      if (hasItem_) changes_.notify();
    }
    if (settled_ && isSettled()) settled_();
  }
  static bool isSamePiece(PlayerReport one, const PlayerReport& other) {
    one.state = other.state;
    return one == other;
  }
  void takePicture() {
    if (picture_ != artwork_->picture()) {
      picture_ = artwork_->picture();
      changes_.notify();
    }
    if (settled_ && isSettled()) settled_();
  }

  MusicSources sources_;
  Subscribers<> changes_;
  PlayerReport shown_;
  bool hasItem_ =
      false; ///< from the first on, for the last one stays, whether it has a name or not
  std::optional<Image> picture_;
  bool isAwaited_ = false;
  std::function<void()> settled_; ///< while the first answers are waited for
  std::optional<QDBusConnection> bus_;
  std::unique_ptr<ArtworkLoader> artwork_;
  std::unique_ptr<Players> players_; ///< from the first question on
};

/// Without one, asking for it would have a library start it.
QDBusConnection sessionBus() {
  const QString there = qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus");
  if (qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS") && !QFile::exists(there))
    return QDBusConnection(QStringLiteral("no bus"));
  return QDBusConnection::sessionBus();
}

} // namespace

MusicPlayer makeMusicPlayer(MusicSources sources) {
  const auto music = std::make_shared<SystemMusic>(std::move(sources));
  return {
      .nowPlayingItem = [music] { return music->item(); },
      .playbackState = [music] { return music->state(); },
      .onNowPlayingItemChange =
          [music](std::function<void()> subscriber) { return music->watch(std::move(subscriber)); },
      .requestAuthorization =
          [music](std::function<void()> completion) {
            return SystemMusic::soon(std::move(completion));
          },
      .currentSubscription =
          [music](std::function<void(bool)> completion) {
            return music->subscription(std::move(completion));
          },
      .presentOffer = [music] { return music->offer(); }};
}

void useMusic(Platform& platform) {
  platform.musicPlayer =
      makeMusicPlayer({.bus = sessionBus, .openApplication = openMusicApplication});
}

void useMusicAtOnce(Platform& platform) {
  platform.musicPlayer = makeMusicPlayer({.bus = sessionBus,
                                          .playerPatience = std::chrono::seconds(1),
                                          .firstPatience = std::chrono::seconds(3),
                                          .openApplication = openMusicApplication});
}

} // namespace vitrelle::host
