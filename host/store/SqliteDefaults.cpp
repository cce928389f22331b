#include "host/store/SqliteDefaults.h"

#include "host/store/SuiteFile.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <string_view>
#include <utility>

#include <sys/inotify.h>
#include <unistd.h>

namespace vitrelle::host {

namespace {

/// After something happened to a store's files without a poke: by then a commit that began has come
/// to its end. Also the distance of looks at what nothing tells of.
constexpr double checkSeconds = 1;

class SqliteDefaults final : public std::enable_shared_from_this<SqliteDefaults> {
  struct Watched {
    Watched(const std::string& home, const char* name, int patience) : file(home, name, patience) {}
    SuiteFile file;
    /// Why the last read failed. Until one works again nothing is written: whoever writes may be
    /// about to put a little in the place of much that only could not be read.
    std::optional<Failure> unreadable;
    bool isTroubled = false;    ///< a read failed since the watchers were last told
    bool isTroubleTold = false; ///< the watchers know that the suite can't be read
    std::set<std::string> watchedKeys;
    SeenChanges seen;
    std::set<std::string> known; ///< every key seen so far in the present file
    Subscribers<const std::string&> subscribers;
  };

  template <class Method, class... Arguments>
  static auto readIn(Watched& watch, Method method, Arguments&... arguments) {
    auto result = (watch.file.*method)(arguments...);
    watch.unreadable = result ? std::nullopt : std::optional(result.failure());
    watch.isTroubled = watch.isTroubled || !result;
    watch.file.setPatient(result.ok());
    return result;
  }

 public:
  SqliteDefaults(std::string home, EventLoop loop, int patience)
      : home_(std::move(home)),
        loop_(std::move(loop)),
        suites_{Watched(home_, groupIdentifier, patience), Watched(home_, "standard", patience)} {}
  ~SqliteDefaults() { stopListening(); }
  SqliteDefaults(const SqliteDefaults&) = delete;
  SqliteDefaults& operator=(const SqliteDefaults&) = delete;

  /// Runs a reading method of the suite's file, alone.
  template <class Method, class... Arguments>
  auto read(Suite suite, Method method, const Arguments&... arguments) {
    auto result = [&] {
      const std::lock_guard lock(mutex_);
      return readIn(watched(suite), method, arguments...);
    }();
    if (!result) checkSoon();
    return result;
  }

  Status write(Suite suite, const std::string& key, const StoreValue* value) {
    const std::lock_guard lock(mutex_);
    const std::optional<Failure>& unreadable = watched(suite).unreadable;
    if (unreadable) return *unreadable;
    SuiteFile& file = watched(suite).file;
    Status written = value ? file.set(key, *value) : file.remove(key);
    file.setPatient(written.ok());
    if (written) {
      static_cast<void>(watchHome()); // it may be new
      file.poke();
    }
    return written;
  }

  Subscription watch(Suite suite, const std::string& key,
                     const std::function<void(const std::optional<StoreValue>&)>& subscriber) {
    Subscription subscription =
        watchKeys(suite, [this, suite, key, subscriber](const auto& changed) {
          if (changed == key) deliver(suite, key, subscriber);
        });
    const auto present = read(suite, &SuiteFile::value, key);
    watched(suite).watchedKeys.insert(key);
    subscriber(present ? *present : std::nullopt);
    return subscription;
  }

  Subscription watchKeys(Suite suite, std::function<void(const std::string&)> subscriber) {
    Watched& watch = watched(suite);
    if (watch.subscribers.empty()) {
      listen();
      watch.seen = {};
      watch.known = {};
      news(watch);
    }
    auto inner = std::make_shared<Subscription>(watch.subscribers.add(std::move(subscriber)));
    return Subscription([inner, weak = weak_from_this()] {
      inner->cancel();
      if (const auto self = weak.lock()) self->stopListeningIfAlone();
    });
  }

 private:
  Watched& watched(Suite suite) { return suites_[suite == Suite::group ? 0 : 1]; }

  /// What can't be read now is absent, and delivered anew when it can.
  void deliver(Suite suite, const std::string& key,
               const std::function<void(const std::optional<StoreValue>&)>& subscriber) {
    const auto value = read(suite, &SuiteFile::value, key);
    subscriber(value ? *value : std::nullopt);
  }

  /// The keys that changed since the last call; with another file, also those of the old one.
  std::set<std::string> news(Watched& watch) {
    const std::lock_guard lock(mutex_);
    const std::uint64_t fileBefore = watch.seen.file;
    const auto changes = readIn(watch, &SuiteFile::changes, watch.seen);
    if (!changes) {
      const bool isTold = std::exchange(watch.isTroubleTold, true);
      return isTold ? std::set<std::string>() : watch.watchedKeys;
    }
    watch.isTroubleTold = false;
    std::set<std::string> keys(changes->begin(), changes->end());
    // Whoever read meanwhile was told of an absence that was none.
    if (std::exchange(watch.isTroubled, false)) {
      keys.insert(watch.known.begin(), watch.known.end());
      keys.insert(watch.watchedKeys.begin(), watch.watchedKeys.end());
    }
    std::set<std::string> known = keys;
    known.merge(watch.known);
    if (watch.seen.file == fileBefore) {
      watch.known = std::move(known);
      return keys;
    }
    watch.known = std::move(keys);
    return known;
  }

  void deliverNews() {
    for (Watched& watch : suites_) {
      if (watch.subscribers.empty()) continue;
      for (const std::string& key : news(watch))
        watch.subscribers.notify(key);
    }
  }

  void listen() {
    if (inotify_ < 0) {
      {
        const std::lock_guard lock(mutex_);
        inotify_ = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
      }
      if (inotify_ >= 0) {
        happened_ = loop_.whenReadable(inotify_, whileAlive(&SqliteDefaults::drain));
      }
    }
    isListening_ = true;
    if (!watchHome()) checkSoon();
  }

  std::function<void()> whileAlive(void (SqliteDefaults::*method)()) {
    return [weak = weak_from_this(), method] {
      if (const auto self = weak.lock()) ((*self).*method)();
    };
  }

  /// Whether what happens in the home will be told. Adding the folder again changes nothing, unless
  /// another one stands there now.
  bool watchHome() const {
    constexpr std::uint32_t told = IN_CLOSE_WRITE | IN_MODIFY | IN_CREATE | IN_DELETE |
                                   IN_MOVED_FROM | IN_MOVED_TO | IN_MOVE_SELF | IN_ONLYDIR;
    return inotify_ >= 0 && inotify_add_watch(inotify_, home_.c_str(), told) >= 0;
  }

  /// A poke tells of what can be read. All else is looked at a moment later: a log is written
  /// before its change can be read, and a look at a store that is in trouble touches its files
  /// itself.
  void drain() {
    alignas(inotify_event) std::array<char, 4096> events{};
    bool isPoked = false;
    bool isTouched = false;
    for (ssize_t size = 0; (size = ::read(inotify_, events.data(), events.size())) > 0;) {
      for (const char* place = events.data(); place < events.data() + size;) {
        inotify_event event{};
        std::memcpy(&event, place, sizeof event);
        const std::string_view name = event.len > 0 ? place + sizeof event : "";
        place += sizeof event + event.len;
        // What stands at the path is another folder now, or none.
        if ((event.mask & IN_MOVE_SELF) != 0) inotify_rm_watch(inotify_, event.wd);
        const bool isPoke = name.ends_with(".poke");
        isPoked = isPoked || (isPoke && (event.mask & IN_CLOSE_WRITE) != 0);
        isTouched = isTouched || name.empty() || name.find(".sqlite") != std::string_view::npos;
      }
    }
    if (isTouched) checkSoon();
    if (isPoked) deliverNews();
  }

  /// One check is enough for all that happened no later than its distance before it.
  void checkSoon() {
    if (check_) {
      isCheckWanted_ = true;
    } else if (isListening_) {
      check_ = loop_.every(checkSeconds, whileAlive(&SqliteDefaults::check));
    }
  }

  /// Goes on as long as there is something of which nothing else would tell.
  void check() {
    const bool isWanted = std::exchange(isCheckWanted_, false);
    const bool isWatched = watchHome();
    deliverNews();
    const bool isTroubled = std::ranges::any_of(suites_, [](const Watched& watch) {
      return !watch.subscribers.empty() && watch.unreadable;
    });
    if (isWatched && !isTroubled && !isWanted && !isCheckWanted_) check_.reset();
  }

  void stopListeningIfAlone() {
    for (const Watched& watch : suites_) {
      if (!watch.subscribers.empty()) return;
    }
    stopListening();
  }

  void stopListening() {
    isListening_ = false;
    happened_.cancel();
    check_.reset();
    const std::lock_guard lock(mutex_);
    if (inotify_ >= 0) close(inotify_);
    inotify_ = -1;
  }

  std::string home_;
  EventLoop loop_;
  std::mutex mutex_; ///< guards the files and `inotify_`; all else is the main thread's
  std::array<Watched, 2> suites_;
  int inotify_ = -1; ///< changed by the main thread, under the mutex
  bool isListening_ = false;
  bool isCheckWanted_ = false; ///< another one after the next
  Subscription happened_;
  std::optional<Subscription> check_; ///< while there is reason for one
};

} // namespace

Defaults makeSqliteDefaults(std::string home, EventLoop loop, int patienceMilliseconds) {
  const auto store =
      std::make_shared<SqliteDefaults>(std::move(home), std::move(loop), patienceMilliseconds);
  return {
      .value =
          [store](Suite suite, const std::string& key) {
            return store->read(suite, &SuiteFile::value, key);
          },
      .set = [store](Suite suite, const std::string& key,
                     const StoreValue& value) { return store->write(suite, key, &value); },
      .remove = [store](Suite suite,
                        const std::string& key) { return store->write(suite, key, nullptr); },
      .keys = [store](Suite suite) { return store->read(suite, &SuiteFile::keys); },
      .watch =
          [store](Suite suite, const std::string& key,
                  std::function<void(const std::optional<StoreValue>&)> subscriber) {
            return store->watch(suite, key, subscriber);
          },
      .watchKeys =
          [store](Suite suite, std::function<void(const std::string&)> subscriber) {
            return store->watchKeys(suite, std::move(subscriber));
          },
  };
}

} // namespace vitrelle::host
