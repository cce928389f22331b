#include "host/store/SqliteDefaults.h"

#include "host/store/SuiteFile.h"

#include <array>
#include <memory>
#include <mutex>
#include <set>
#include <utility>

#include <sys/inotify.h>
#include <unistd.h>

namespace vitrelle::host {

namespace {

/// Covers a writer that died before it could wake anyone, and a home folder that is yet to come.
constexpr double slowPollSeconds = 1;

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
    const std::lock_guard lock(mutex_);
    return readIn(watched(suite), method, arguments...);
  }

  Status write(Suite suite, const std::string& key, const StoreValue* value) {
    const std::lock_guard lock(mutex_);
    const std::optional<Failure>& unreadable = watched(suite).unreadable;
    if (unreadable) return *unreadable;
    SuiteFile& file = watched(suite).file;
    Status written = value ? file.set(key, *value) : file.remove(key);
    file.setPatient(written.ok());
    if (written) {
      watchHome(); // it may be new
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
      const auto whileAlive = [weak = weak_from_this()](void (SqliteDefaults::*method)()) {
        return [weak, method] {
          if (const auto self = weak.lock()) ((*self).*method)();
        };
      };
      slowPoll_ = loop_.every(slowPollSeconds, whileAlive(&SqliteDefaults::tick));
      if (inotify_ < 0) return;
      poked_ = loop_.whenReadable(inotify_, whileAlive(&SqliteDefaults::drain));
    }
    watchHome();
  }

  /// Adding the folder again changes nothing, unless another one stands there now.
  void watchHome() {
    if (inotify_ >= 0) inotify_add_watch(inotify_, home_.c_str(), IN_CLOSE_WRITE | IN_ONLYDIR);
  }

  void drain() {
    std::array<char, 4096> events{};
    while (::read(inotify_, events.data(), events.size()) > 0) {
    }
    deliverNews();
  }

  void tick() {
    watchHome();
    deliverNews();
  }

  void stopListeningIfAlone() {
    for (const Watched& watch : suites_) {
      if (!watch.subscribers.empty()) return;
    }
    stopListening();
  }

  void stopListening() {
    poked_.cancel();
    slowPoll_.cancel();
    const std::lock_guard lock(mutex_);
    if (inotify_ >= 0) close(inotify_);
    inotify_ = -1;
  }

  std::string home_;
  EventLoop loop_;
  std::mutex mutex_; ///< guards the files and `inotify_`; all else is the main thread's
  std::array<Watched, 2> suites_;
  int inotify_ = -1; ///< changed by the main thread, under the mutex
  Subscription poked_;
  Subscription slowPoll_;
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
