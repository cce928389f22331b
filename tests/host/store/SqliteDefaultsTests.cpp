#include "tests/host/store/SqliteDefaultsTest.h"

#include <cmath>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <limits>
#include <random>
#include <string>

#include <sqlite3.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace vitrelle::host {
namespace {

TEST_F(SqliteDefaultsTest, everyKindOfValue_comesBackInAnotherStoreObject) {
  const StoreValue values[] = {
      std::int64_t{-5},
      std::numeric_limits<std::int64_t>::min(),
      18.0,
      -0.1,
      std::numeric_limits<double>::infinity(),
      true,
      false,
      std::string(),
      std::string("a\0b", 3),
      std::string("\xFF not UTF-8"),
      Data{},
      Data{0, 255, 0},
      Data(3'000'000, 7),
      Date{-1.25},
  };
  const Defaults writer = open();
  const Defaults reader = open();
  for (std::size_t i = 0; i < std::size(values); ++i) {
    for (const Suite suite : {Suite::group, Suite::standard}) {
      ASSERT_TRUE(writer.set(suite, "key", values[i]));
      EXPECT_EQ(read(reader, suite, "key"), values[i]) << "value " << i;
    }
  }
  ASSERT_TRUE(writer.set(Suite::group, "nan", std::nan("")));
  EXPECT_TRUE(std::isnan(std::get<double>(read(reader, Suite::group, "nan"))));
}

TEST_F(SqliteDefaultsTest, keys_areThePresentOnesOfTheirSuiteInOrder) {
  const Defaults defaults = open();
  for (const char* key : {"b", "a", "ä", "B", ""}) {
    ASSERT_TRUE(defaults.set(Suite::group, key, std::int64_t{1}));
  }
  ASSERT_TRUE(defaults.remove(Suite::group, "a"));
  ASSERT_TRUE(defaults.remove(Suite::group, "never there"));
  EXPECT_EQ(*defaults.keys(Suite::group), (std::vector<std::string>{"", "B", "b", "ä"}));
  EXPECT_TRUE(defaults.keys(Suite::standard)->empty());
  ASSERT_TRUE(defaults.set(Suite::group, "a", true));
  EXPECT_EQ(read(defaults, Suite::group, "a"), StoreValue(true));
}

TEST_F(SqliteDefaultsTest, readingAHomeThatIsNotThere_createsNothing) {
  const Defaults defaults = open();
  EXPECT_EQ(*defaults.value(Suite::group, "key"), std::nullopt);
  EXPECT_TRUE(defaults.keys(Suite::standard)->empty());
  EXPECT_TRUE(defaults.remove(Suite::group, "key"));
  const Subscription watch = defaults.watch(Suite::group, "key", [](const auto&) {});
  EXPECT_TRUE(fs::is_empty(folder));
}

TEST_F(SqliteDefaultsTest, whatIsCreated_isForTheUserAlone) {
  const Defaults defaults = open();
  const mode_t before = umask(0);
  ASSERT_TRUE(defaults.set(Suite::group, "key", true));
  umask(before);
  int files = 0;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    struct stat status {};
    ASSERT_EQ(stat(entry.path().c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, entry.is_directory() ? 0700U : 0600U) << entry.path();
    files += entry.is_directory() ? 0 : 1;
  }
  EXPECT_EQ(files, 4) << "the database, its log and index, and the file that wakes";
}

TEST_F(SqliteDefaultsTest, removedOrReplacedFile_isNoticedAtTheNextAccess) {
  const Defaults defaults = open();
  const auto removeStore = [&] {
    for (const char* suffix : {"", "-wal", "-shm"})
      fs::remove(groupFile() + suffix);
  };
  ASSERT_TRUE(defaults.set(Suite::group, "old", true));
  removeStore();
  EXPECT_TRUE(defaults.keys(Suite::group)->empty());
  ASSERT_TRUE(defaults.set(Suite::group, "new", true));
  EXPECT_EQ(*defaults.keys(Suite::group), std::vector<std::string>{"new"});

  removeStore();
  ASSERT_TRUE(open().set(Suite::group, "newest", true));
  EXPECT_EQ(*defaults.keys(Suite::group), std::vector<std::string>{"newest"});
}

TEST_F(SqliteDefaultsTest, fileThatIsNoStore_failsInWordsAndStaysAsItIs) {
  const std::string content = "not a database, but long enough to have a header of one. "
                              "It goes on and on until a hundred bytes are full of it.";
  fs::create_directories(home);
  std::ofstream(groupFile()) << content;
  const Defaults defaults = open();
  EXPECT_FALSE(defaults.value(Suite::group, "key"));
  EXPECT_FALSE(defaults.keys(Suite::group));
  const Status written = defaults.set(Suite::group, "key", true);
  ASSERT_FALSE(written);
  EXPECT_EQ(written.failure().what, groupFile());
  EXPECT_FALSE(written.failure().why.empty());
  EXPECT_EQ(fs::file_size(groupFile()), content.size());
  EXPECT_TRUE(defaults.set(Suite::standard, "key", true)) << "the other suite is unharmed";
}

TEST_F(SqliteDefaultsTest, fileThatLacksAPageOrMore_failsAndNeverCrashes) {
  ASSERT_TRUE(open().set(Suite::group, "key", Data(20'000, 1)));
  constexpr std::uintmax_t pageBytes = 4096;
  for (auto length = fs::file_size(groupFile()) - pageBytes; length > 0;
       length -= std::min<std::uintmax_t>(length, 997)) {
    fs::resize_file(groupFile(), length);
    EXPECT_FALSE(open().value(Suite::group, "key")) << length;
    EXPECT_FALSE(open().set(Suite::group, "key", true)) << length;
    EXPECT_EQ(fs::file_size(groupFile()), length) << "nothing was written";
  }
}

TEST_F(SqliteDefaultsTest, homeThatCannotBeMade_failsInWords) {
  std::ofstream(folder + "/deep") << "a file where a folder should be";
  const Defaults defaults = open();
  EXPECT_EQ(*defaults.value(Suite::group, "key"), std::nullopt);
  const Status written = defaults.set(Suite::group, "key", true);
  ASSERT_FALSE(written);
  EXPECT_EQ(written.failure().why, "Not a directory");
}

TEST_F(SqliteDefaultsTest, fullDisk_failsAndKeepsWhatIsStored) {
  ASSERT_TRUE(open().set(Suite::group, "key", std::int64_t{1}));
  const pid_t child = start([&] {
    signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{100'000, 100'000}; // no file may grow further: to a writer, a full disk
    setrlimit(RLIMIT_FSIZE, &limit);
    const Defaults defaults = open();
    const bool refused = !defaults.set(Suite::group, "key", Data(1'000'000, 1));
    return refused && read(defaults, Suite::group, "key") == StoreValue(std::int64_t{1}) &&
           defaults.set(Suite::group, "other", true).ok();
  });
  EXPECT_TRUE(succeeded(child));
  EXPECT_EQ(read(open(), Suite::group, "key"), StoreValue(std::int64_t{1}));
}

TEST_F(SqliteDefaultsTest, diskFullAtTheFirstWrite_leavesNoStoreOrAGoodOne) {
  fs::create_directories(home);
  if (!canMount()) GTEST_SKIP() << "no right to mount";
  const pid_t child = fork();
  if (child == 0) {
    for (int kilobytes = 4; kilobytes <= 160; kilobytes += 4) {
      if (!mountDisk("size=" + std::to_string(kilobytes) + "k")) _exit(kilobytes);
      const bool written = open().set(Suite::group, "key", true).ok();
      mount("tmpfs", home.c_str(), "tmpfs", MS_REMOUNT, "size=1m");
      const StoreValue value = read(open(), Suite::group, "key");
      const bool good =
          value == StoreValue(true) || (!written && value == StoreValue(std::string("absent")));
      if (!good || !open().set(Suite::group, "other", true)) _exit(kilobytes);
    }
    _exit(0);
  }
  int status = 0;
  waitpid(child, &status, 0);
  ASSERT_TRUE(WIFEXITED(status));
  EXPECT_EQ(WEXITSTATUS(status), 0) << "the disk's size in kilobytes";
}

TEST_F(SqliteDefaultsTest, manyWritersFromTheFirstMoment_loseNoKey) {
  constexpr int writers = 4;
  constexpr int keysEach = 50;
  std::vector<pid_t> children;
  for (int writer = 0; writer < writers; ++writer) {
    children.push_back(start([&] {
      const Defaults defaults = open();
      for (int i = 0; i < keysEach; ++i) {
        const std::string key = std::to_string(writer) + "." + std::to_string(i);
        if (!defaults.set(Suite::group, key, std::int64_t{i})) return false;
      }
      return true;
    }));
  }
  for (const pid_t child : children)
    EXPECT_TRUE(succeeded(child));
  EXPECT_EQ(open().keys(Suite::group)->size(), std::size_t{writers} * keysEach);
}

TEST_F(SqliteDefaultsTest, watcher_seesThePresentValueAndEveryChangeOfAnotherProcess) {
  const Defaults defaults = open();
  std::vector<std::int64_t> seen;
  const Subscription watch = defaults.watch(Suite::group, "key", [&](const auto& value) {
    seen.push_back(value ? std::get<std::int64_t>(*value) : -1);
  });
  EXPECT_EQ(seen, std::vector<std::int64_t>{-1});
  constexpr std::int64_t last = 300;
  const pid_t child = start([&] {
    const Defaults writer = open();
    for (std::int64_t i = 0; i <= last; ++i) {
      if (!writer.set(Suite::group, "key", i)) return false;
    }
    return true;
  });
  EXPECT_TRUE(runUntil([&] { return seen.back() == last; }));
  EXPECT_TRUE(succeeded(child));
  EXPECT_TRUE(std::is_sorted(seen.begin(), seen.end()));

  EXPECT_TRUE(succeeded(start([&] { return open().remove(Suite::group, "key").ok(); })));
  EXPECT_TRUE(runUntil([&] { return seen.back() == -1; }));
}

TEST_F(SqliteDefaultsTest, ownWrite_isDeliveredInsideTheLoopAndNotAfterCancel) {
  const Defaults defaults = open();
  std::vector<std::string> changed;
  int calls = 0;
  const Subscription keys =
      defaults.watchKeys(Suite::group, [&](const std::string& key) { changed.push_back(key); });
  Subscription watch = defaults.watch(Suite::group, "b", [&](const auto&) {
    if (++calls == 2) watch.cancel();
  });
  ASSERT_TRUE(defaults.set(Suite::group, "b", true)); // makes the home, too
  ASSERT_TRUE(defaults.set(Suite::standard, "c", true));
  EXPECT_TRUE(changed.empty());
  const auto start = std::chrono::steady_clock::now();
  EXPECT_TRUE(runUntil([&] { return calls == 2; }));
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(500))
      << "it waited for the slow poll";
  ASSERT_TRUE(defaults.set(Suite::group, "b", false));
  EXPECT_TRUE(runUntil([&] { return changed.size() == 2; }));
  EXPECT_EQ(changed, (std::vector<std::string>{"b", "b"}));
  EXPECT_EQ(calls, 2);
}

TEST_F(SqliteDefaultsTest, watcher_learnsThatTheFileWasRemovedOrReplacedUnpoked) {
  const Defaults defaults = open();
  ASSERT_TRUE(defaults.set(Suite::group, "key", true));
  std::optional<StoreValue> present;
  const Subscription watch =
      defaults.watch(Suite::group, "key", [&](const auto& value) { present = value; });
  EXPECT_EQ(present, StoreValue(true));
  fs::remove_all(home);
  EXPECT_TRUE(runUntil([&] { return !present; }));

  const std::string path = groupFile();
  home = folder + "/elsewhere";
  ASSERT_TRUE(open().set(Suite::group, "key", std::string("restored")));
  fs::create_directories(fs::path(path).parent_path());
  fs::rename(groupFile(), path);
  EXPECT_TRUE(runUntil([&] { return present == StoreValue(std::string("restored")); }));
}

/// Writes as a program does that knows nothing of pokes, or dies before its own.
bool writeUnpoked(const std::string& path, int value) {
  sqlite3* database = nullptr;
  if (sqlite3_open(path.c_str(), &database) != SQLITE_OK) return false;
  const std::string sql = "INSERT OR REPLACE INTO kv SELECT 'key', 'Int', " +
                          std::to_string(value) + ", ifnull(max(rev), 0) + 1 FROM kv";
  return sqlite3_exec(database, sql.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK;
}

TEST_F(SqliteDefaultsTest, commitWithoutAPoke_isNoticed) {
  const Defaults defaults = open();
  ASSERT_TRUE(defaults.set(Suite::group, "key", std::int64_t{0}));
  StoreValue present;
  const Subscription watch =
      defaults.watch(Suite::group, "key", [&](const auto& value) { present = *value; });
  for (const bool dies : {true, false}) {
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    const pid_t child = start([&] {
      const bool written = writeUnpoked(groupFile(), dies ? 1 : 2);
      if (dies) kill(getpid(), SIGKILL);
      char end = 0;
      return written && ::read(ends[0], &end, 1) == 1; // with the store open
    });
    EXPECT_TRUE(runUntil([&] { return present == StoreValue(std::int64_t{dies ? 1 : 2}); }))
        << "of a writer that " << (dies ? "dies" : "lives on");
    EXPECT_EQ(::write(ends[1], "e", 1), 1);
    EXPECT_EQ(succeeded(child), !dies);
    close(ends[0]);
    close(ends[1]);
  }
}

TEST_F(SqliteDefaultsTest, watcher_isNotWokenWhileNothingChanges) {
  int timers = 0;
  EventLoop counted = loop.operations();
  counted.every = [&, every = counted.every](double seconds, const std::function<void()>& call) {
    ++timers;
    auto timer = std::make_shared<Subscription>(every(seconds, call));
    return Subscription([&, timer] {
      --timers;
      timer->cancel();
    });
  };
  const Defaults defaults = makeSqliteDefaults(home, counted);
  const auto watch = [&](Suite suite) { return defaults.watch(suite, "key", [](const auto&) {}); };
  const Subscription group = watch(Suite::group);
  const Subscription standard = watch(Suite::standard);
  EXPECT_EQ(timers, 1) << "a home that is yet to come is looked for";
  ASSERT_TRUE(open().set(Suite::group, "key", true));
  EXPECT_TRUE(runUntil([&] { return timers == 0; }));
  ASSERT_TRUE(defaults.set(Suite::group, "key", false));
  EXPECT_TRUE(runUntil([&] { return timers == 1; })) << "a commit is looked after";
  EXPECT_TRUE(runUntil([&] { return timers == 0; })) << "once";
  fs::rename(home, home + ".away");
  EXPECT_TRUE(runUntil([&] { return timers == 1; }));
  fs::rename(home + ".away", home);
  EXPECT_TRUE(runUntil([&] { return timers == 0; }));
  fs::rename(groupFile(), groupFile() + ".away");
  std::ofstream(groupFile()) << "garbage";
  const auto since = std::chrono::steady_clock::now();
  EXPECT_TRUE(runUntil(
      [&] { return std::chrono::steady_clock::now() - since > std::chrono::milliseconds(2500); }));
  EXPECT_EQ(timers, 1) << "nothing tells of the end of all trouble";
}

TEST_F(SqliteDefaultsTest, killedWriter_losesNothingAcknowledged) {
  std::minstd_rand random(7); // NOLINT(cert-msc51-cpp): the same moments in every run
  for (int round = 0; round < 60; ++round) {
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    const pid_t child = start([&] {
      const Defaults defaults = open();
      for (std::int64_t i = 1;; ++i) {
        if (!defaults.set(Suite::group, "round" + std::to_string(round), i)) return false;
        if (write(ends[1], &i, sizeof i) != sizeof i) return false;
      }
    });
    close(ends[1]);
    usleep(static_cast<useconds_t>(random() % 30'000));
    kill(child, SIGKILL);
    ASSERT_FALSE(succeeded(child));
    std::int64_t acknowledged = 0;
    for (std::int64_t i = 0; ::read(ends[0], &i, sizeof i) == sizeof i;)
      acknowledged = i;
    close(ends[0]);
    const StoreValue stored = read(open(), Suite::group, "round" + std::to_string(round));
    if (acknowledged == 0 && stored == StoreValue(std::string("absent"))) continue;
    ASSERT_TRUE(std::holds_alternative<std::int64_t>(stored)) << std::get<std::string>(stored);
    EXPECT_GE(std::get<std::int64_t>(stored), acknowledged);
    EXPECT_LE(std::get<std::int64_t>(stored), acknowledged + 1);
  }
}

} // namespace
} // namespace vitrelle::host
