// Stores that can't be read, or not written, or neither.
#include "tests/host/store/SqliteDefaultsTest.h"

#include <fstream>
#include <optional>

#include <sqlite3.h>
#include <sys/stat.h>

namespace vitrelle::host {
namespace {

class StoreTroubleTest : public SqliteDefaultsTest {
 protected:
  /// Runs `work` as a user who may read everything below the home and write nothing.
  bool asReader(const std::function<bool()>& work) const {
    for (const auto& entry : fs::recursive_directory_iterator(folder))
      fs::permissions(entry, fs::perms(entry.is_directory() ? 0555 : 0444));
    fs::permissions(folder, fs::perms(0555));
    constexpr uid_t nobody = 65534;
    const bool worked =
        succeeded(start([&] { return (geteuid() != 0 || setuid(nobody) == 0) && work(); }));
    fs::permissions(folder, fs::perms(0700));
    for (const auto& entry : fs::recursive_directory_iterator(folder))
      fs::permissions(entry, fs::perms(entry.is_directory() ? 0700 : 0600));
    return worked;
  }
};

/// Keeps everyone else from the store, as a program does that is in the midst of repairing it.
class StoreLock final {
 public:
  explicit StoreLock(const std::string& path) {
    sqlite3_open(path.c_str(), &database_);
    for (const char* sql : {"PRAGMA locking_mode=EXCLUSIVE", "BEGIN EXCLUSIVE"})
      sqlite3_exec(database_, sql, nullptr, nullptr, nullptr);
  }
  ~StoreLock() { sqlite3_close(database_); }
  StoreLock(const StoreLock&) = delete;
  StoreLock& operator=(const StoreLock&) = delete;

 private:
  sqlite3* database_ = nullptr;
};

TEST_F(StoreTroubleTest, suiteWhoseReadFailed_takesNoWritesUntilAReadWorks) {
  ASSERT_TRUE(open().set(Suite::group, "amount", std::int64_t{3}));
  const Defaults defaults = open();
  auto lock = std::make_optional<StoreLock>(groupFile());
  ASSERT_FALSE(defaults.value(Suite::group, "amount"));
  const auto begin = std::chrono::steady_clock::now();
  for (int i = 0; i < 10; ++i)
    EXPECT_FALSE(defaults.value(Suite::group, "amount"));
  EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(4))
      << "a window that reads so often would stand still";
  // It can be written now, but by whom? By one who takes the three for none.
  lock.reset();
  EXPECT_FALSE(defaults.set(Suite::group, "amount", std::int64_t{0}));
  EXPECT_FALSE(defaults.remove(Suite::group, "amount"));
  EXPECT_TRUE(defaults.set(Suite::standard, "amount", std::int64_t{0})) << "the other can be read";
  EXPECT_EQ(read(defaults, Suite::group, "amount"), StoreValue(std::int64_t{3}));
  EXPECT_TRUE(defaults.set(Suite::group, "amount", std::int64_t{4}));
}

TEST_F(StoreTroubleTest, watcherOfALockedStore_getsTheValuesWhenItIsFree) {
  ASSERT_TRUE(open().set(Suite::group, "key", std::int64_t{3}));
  const Defaults defaults = open();
  auto lock = std::make_optional<StoreLock>(groupFile());
  std::vector<std::optional<StoreValue>> seen;
  const Subscription watch =
      defaults.watch(Suite::group, "key", [&](const auto& value) { seen.push_back(value); });
  EXPECT_EQ(seen, std::vector<std::optional<StoreValue>>{std::nullopt});
  lock.reset();
  EXPECT_TRUE(runUntil([&] { return seen.back() == StoreValue(std::int64_t{3}); }));

  // Whoever was told in between that there is nothing is told anew, though nothing was written.
  fs::rename(groupFile(), groupFile() + ".away");
  std::ofstream(groupFile()) << "garbage";
  EXPECT_FALSE(defaults.value(Suite::group, "key"));
  EXPECT_TRUE(runUntil([&] { return !seen.back(); })) << "nobody is told of the damage";
  seen.clear();
  fs::rename(groupFile() + ".away", groupFile());
  EXPECT_EQ(read(defaults, Suite::group, "key"), StoreValue(std::int64_t{3}));
  EXPECT_TRUE(runUntil([&] { return !seen.empty(); })) << "another reader saw the end first";
  EXPECT_EQ(seen.front(), StoreValue(std::int64_t{3}));
}

TEST_F(StoreTroubleTest, readOnlyHome_canBeLookedAt) {
  ASSERT_TRUE(open().set(Suite::group, "key", std::int64_t{1}));
  ASSERT_FALSE(fs::exists(groupFile() + "-shm")) << "a program that ended leaves the store alone";
  const auto looks = [&](std::int64_t expected) {
    return asReader([&] {
      const Defaults defaults = open();
      return read(defaults, Suite::group, "key") == StoreValue(expected) &&
             defaults.keys(Suite::group)->size() == 1 &&
             read(defaults, Suite::standard, "key") == StoreValue(std::string("absent")) &&
             !defaults.set(Suite::group, "key", std::int64_t{9}) &&
             read(defaults, Suite::group, "key") == StoreValue(expected);
    });
  };
  EXPECT_TRUE(looks(1));
  // Beside a program that has it open, what is written lies in the log alone.
  const Defaults other = open();
  ASSERT_TRUE(other.set(Suite::group, "key", std::int64_t{2}));
  EXPECT_TRUE(looks(2));
}

TEST_F(StoreTroubleTest, readOnlyHome_showsWhatAnotherWritesLater) {
  ASSERT_TRUE(open().set(Suite::group, "key", std::int64_t{1}));
  int ends[2];
  ASSERT_EQ(pipe(ends), 0);
  const pid_t writer = start([&] {
    char go = 0;
    return ::read(ends[0], &go, 1) == 1 && open().set(Suite::group, "key", std::int64_t{2});
  });
  EXPECT_TRUE(asReader([&] {
    const Defaults defaults = open();
    if (read(defaults, Suite::group, "key") != StoreValue(std::int64_t{1})) return false;
    if (::write(ends[1], "g", 1) != 1) return false;
    for (int tries = 0; tries < 500; ++tries) {
      if (read(defaults, Suite::group, "key") == StoreValue(std::int64_t{2})) return true;
      usleep(10'000);
    }
    return false;
  })) << "only root may write there meanwhile";
  kill(writer, SIGKILL);
  waitpid(writer, nullptr, 0);
  close(ends[0]);
  close(ends[1]);
}

TEST_F(StoreTroubleTest, fullDisk_doesNotStopReading) {
  fs::create_directories(home);
  if (!canMount()) GTEST_SKIP() << "no right to mount";
  EXPECT_TRUE(succeeded(start([&] {
    if (!mountDisk("size=128k") || !open().set(Suite::group, "key", std::int64_t{3})) return false;
    std::ofstream filler(home + "/filler");
    while (filler << std::string(4096, 'x') && filler.flush()) {
    }
    const Defaults defaults = open();
    return read(defaults, Suite::group, "key") == StoreValue(std::int64_t{3}) &&
           !defaults.set(Suite::group, "key", Data(100'000, 1)) &&
           read(defaults, Suite::group, "key") == StoreValue(std::int64_t{3});
  })));
}

TEST_F(StoreTroubleTest, emptyFile_readsAsAStoreWithoutValuesAndTakesSome) {
  fs::create_directories(home);
  const std::ofstream made(groupFile());
  std::vector<pid_t> children;
  EXPECT_EQ(*open().value(Suite::group, "key"), std::nullopt);
  EXPECT_TRUE(open().keys(Suite::group)->empty());
  for (int writer = 0; writer < 4; ++writer) {
    children.push_back(start(
        [&] { return open().set(Suite::group, std::to_string(writer), std::int64_t{1}).ok(); }));
  }
  for (const pid_t child : children)
    EXPECT_TRUE(succeeded(child));
  EXPECT_EQ(open().keys(Suite::group)->size(), 4U);
}

TEST_F(StoreTroubleTest, emptyFileBesideALog_isDamagedAndTheLogStays) {
  const Defaults defaults = open();
  ASSERT_TRUE(defaults.set(Suite::group, "key", true));
  fs::resize_file(groupFile(), 0);
  const auto logBytes = fs::file_size(groupFile() + "-wal");
  EXPECT_FALSE(open().value(Suite::group, "key"));
  EXPECT_FALSE(open().set(Suite::group, "key", true));
  EXPECT_EQ(fs::file_size(groupFile() + "-wal"), logBytes);
}

TEST_F(StoreTroubleTest, whatIsNoRegularFile_isRefusedAndNotWaitedFor) {
  for (const char* suffix : {"", "-wal", "-shm", "-journal"}) {
    fs::remove_all(home);
    if (*suffix != 0) {
      ASSERT_TRUE(open().set(Suite::group, "key", true));
    }
    fs::create_directories(home);
    ASSERT_EQ(mkfifo((groupFile() + suffix).c_str(), 0600), 0);
    const auto value = open().value(Suite::group, "key");
    ASSERT_FALSE(value) << suffix;
    EXPECT_EQ(value.failure().what, groupFile() + suffix);
    EXPECT_FALSE(open().set(Suite::group, "key", false)) << suffix;
  }
  fs::remove_all(home);
  fs::create_directories(home);
  ASSERT_EQ(mkfifo((home + "/" + groupIdentifier + ".poke").c_str(), 0600), 0);
  EXPECT_TRUE(open().set(Suite::group, "key", true)) << "nobody is woken, that is all";
}

TEST_F(StoreTroubleTest, indexCutShort_isToldInsteadOfEndingTheProcess) {
  EXPECT_TRUE(succeeded(start([&] {
    const Defaults defaults = open();
    if (!defaults.set(Suite::group, "key", true)) return false;
    fs::resize_file(groupFile() + "-shm", 0);
    return !defaults.value(Suite::group, "key") && !defaults.set(Suite::group, "key", false);
  })));
  EXPECT_EQ(read(open(), Suite::group, "key"), StoreValue(true)) << "the next start is well";
}

TEST_F(StoreTroubleTest, pathThatIsTooLong_isRefusedInWordsThatTellTheMost) {
  constexpr std::size_t most = 464;
  while (most - home.size() > 100)
    home += "/" + std::string(60, 'x');
  home += "/" + std::string(most - home.size() - 1, 'y');
  EXPECT_TRUE(open().set(Suite::group, "key", true)) << home.size();
  home += "z";
  const Status written = open().set(Suite::group, "key", true);
  ASSERT_FALSE(written);
  EXPECT_NE(written.failure().why.find("464 characters"), std::string::npos)
      << written.failure().why << " for " << home.size();
}

TEST_F(StoreTroubleTest, cellOfAnotherKindThanItSays_isGivenAsWhatItIs) {
  ASSERT_TRUE(open().set(Suite::group, "key", std::int64_t{3}));
  sqlite3* database = nullptr;
  ASSERT_EQ(sqlite3_open(groupFile().c_str(), &database), SQLITE_OK);
  sqlite3_exec(database, "UPDATE kv SET value = 'three'", nullptr, nullptr, nullptr);
  EXPECT_EQ(read(open(), Suite::group, "key"), StoreValue(std::string("three")));
  sqlite3_exec(database, "UPDATE kv SET type = 'Bool', value = 7", nullptr, nullptr, nullptr);
  EXPECT_EQ(read(open(), Suite::group, "key"), StoreValue(std::int64_t{7}));
  sqlite3_exec(database, "UPDATE kv SET type = 'Int', value = NULL", nullptr, nullptr, nullptr);
  EXPECT_EQ(read(open(), Suite::group, "key"), StoreValue(std::string("absent")));
  sqlite3_close(database);
}

} // namespace
} // namespace vitrelle::host
