// Garbage in the store. The first byte's lowest bit chooses: a whole file of the rest, or one row
// of it in a good file; the other bits choose a key. Reading, writing and watching never crash, a
// value that was written can be read, what changed is told to those who watch, and a key can be
// asked for a value of any type.
#include "core/store/GroupStore.h"
#include "host/store/SqliteDefaults.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <variant>

#include <unistd.h>

#include <sqlite3.h>

namespace {

namespace fs = std::filesystem;
using namespace vitrelle;

/// Made in memory if the system has a place for that, since every write is synced.
class Folder final {
 public:
  Folder() {
    const fs::path memory = "/dev/shm";
    const bool hasMemory = access(memory.c_str(), W_OK) == 0;
    std::string pattern = (hasMemory ? memory : fs::temp_directory_path()) / "stored-values.XXXXXX";
    path_ = mkdtemp(pattern.data());
  }
  ~Folder() { fs::remove_all(path_); }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  const fs::path& path() const { return path_; }

 private:
  fs::path path_;
};

/// A folder of this name for a store.
fs::path makeHome(const char* name) {
  static const Folder folder;
  const fs::path home = folder.path() / name;
  fs::create_directory(home);
  return home;
}

/// A Platform whose other operations are never called.
Platform platformOf(Defaults defaults) {
  return {.defaults = std::move(defaults),
          .files = {},
          .images = {},
          .device = {},
          .phoneBook = {},
          .widgetCenter = {},
          .bundle = {},
          .debugConsole = {},
          .mainQueue = {},
          .notificationCentre = {},
          .application = {},
          .links = {},
          .haptics = {},
          .bannerKit = {},
          .symbols = {}};
}

/// The key's value as each type that a reader may ask for, and as records if it is a family's.
void readAsAnything(const GroupStore& store, const char* key) {
  const auto as = [&]<class... Values>(const std::variant<Values...>*) {
    (static_cast<void>(store.valueOrDefault(Key<Values>{Suite::group, key, Absence::isAState})),
     ...);
  };
  as(static_cast<const StoreValue*>(nullptr));
  forEachFamily([&](const auto& family) {
    if (std::string_view(family.records.name) == key) static_cast<void>(store.loadRecords(family));
  });
}

constexpr auto keyNames =
    std::apply([](const auto&... keys) { return std::array{keys.name...}; }, keys::groupKeys);

/// A store that is watched, kept from one input to the next: opening one and ending a watch take
/// many times as long as all that is done with them.
class KeptStore final {
 public:
  explicit KeptStore(const char* name) : home_(makeHome(name)) {}

  const Defaults& defaults() const { return platform_.defaults; }
  GroupStore values() const { return GroupStore(platform_); }
  std::string file() const { return home_ / (std::string(groupIdentifier) + ".sqlite"); }

  /// The keys that changed since the last time, as a program's loop would deliver them.
  const std::set<std::string>& news() {
    told_.clear();
    wake_();
    return told_;
  }

 private:
  Defaults open() {
    return host::makeSqliteDefaults(
        home_, {.whenReadable =
                    [this](int, const std::function<void()>& wake) {
                      wake_ = wake;
                      return Subscription();
                    },
                .every = [](double, const std::function<void()>&) { return Subscription(); }});
  }

  fs::path home_;
  std::function<void()> wake_;
  std::set<std::string> told_;
  Platform platform_ = platformOf(open());
  Subscription watch_ = platform_.defaults.watchKeys(
      Suite::group, [this](const std::string& key) { told_.insert(key); });
};

/// The bytes as the store's file.
void useFile(const char* key, const std::uint8_t* bytes, std::size_t size) {
  static KeptStore store("files");
  for (const char* suffix : {"", "-journal", "-wal", "-shm"})
    fs::remove(store.file() + suffix);
  std::ofstream(store.file(), std::ios::binary)
      .write(reinterpret_cast<const char*>(bytes), static_cast<std::streamsize>(size));
  store.news();
  if (store.defaults().keys(Suite::group)) {
    readAsAnything(store.values(), key);
  } else { // for nobody, whatever is asked; each time, what can't be opened is tried anew
    static_cast<void>(store.defaults().value(Suite::group, key));
  }
  if (store.defaults().set(Suite::group, "written", Data(bytes, bytes + size))) {
    static_cast<void>(store.defaults().value(Suite::group, "written")); // which may be lost again
    store.news();
  }
}

/// Rows in a good file, put there beside the store as another program would.
class RowsStore final {
 public:
  RowsStore() {
    const bool made = store_.defaults().set(Suite::group, "any", true).ok();
    const std::string file = store_.file();
    constexpr const char* put = "INSERT OR REPLACE INTO kv VALUES(?1, ?2, ?3, ?4)";
    if (!made || sqlite3_open(file.c_str(), &database_) != SQLITE_OK ||
        sqlite3_prepare_v2(database_, put, -1, &put_, nullptr) != SQLITE_OK) {
      std::abort();
    }
  }
  ~RowsStore() {
    sqlite3_finalize(put_);
    sqlite3_close(database_);
  }
  RowsStore(const RowsStore&) = delete;
  RowsStore& operator=(const RowsStore&) = delete;

  /// The bytes are the row's type, of which the key may be removed, and its value.
  void use(const char* key, const std::uint8_t* bytes, std::size_t size) {
    putRow(key, bytes, size);
    if (!store_.news().contains(key)) std::abort();
    readAsAnything(store_.values(), key);

    const StoreValue value = Data(bytes, bytes + size);
    const Defaults& defaults = store_.defaults();
    if (!defaults.set(Suite::group, "written", value)) return;
    const auto read = defaults.value(Suite::group, "written");
    if (!read || *read != value || !store_.news().contains("written")) std::abort();
    static_cast<void>(defaults.keys(Suite::group));
  }

 private:
  void putRow(const char* key, const std::uint8_t* bytes, std::size_t size) {
    static const char* const types[] = {"Int",  "Double", "Bool",    "String",
                                        "Data", "Date",   "removed", "x"};
    const std::string text(reinterpret_cast<const char*>(bytes + 1), size - 1);
    sqlite3_bind_text(put_, 1, key, -1, SQLITE_STATIC);
    sqlite3_bind_text(put_, 2, types[bytes[0] & 7], -1, SQLITE_STATIC);
    switch (bytes[0] >> 3 & 3) {
    case 0:
      sqlite3_bind_int64(put_, 3, std::strtoll(text.c_str(), nullptr, 10));
      break;
    case 1:
      sqlite3_bind_double(put_, 3, std::strtod(text.c_str(), nullptr));
      break;
    case 2:
      sqlite3_bind_text64(put_, 3, text.data(), text.size(), SQLITE_STATIC, SQLITE_UTF8);
      break;
    default:
      sqlite3_bind_blob64(put_, 3, text.data(), text.size(), SQLITE_STATIC);
    }
    sqlite3_bind_int64(put_, 4, revision_);
    revision_ += 2; // the store's own write takes the one between
    if (sqlite3_step(put_) != SQLITE_DONE) std::abort();
    sqlite3_reset(put_);
  }

  KeptStore store_{"rows"};
  sqlite3* database_ = nullptr;
  sqlite3_stmt* put_ = nullptr;
  std::int64_t revision_ = 2;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  if (size < 2) return 0;
  const char* key = keyNames[(bytes[0] >> 1) % keyNames.size()];
  if (bytes[0] & 1) {
    useFile(key, bytes + 1, size - 1);
  } else {
    static RowsStore store;
    store.use(key, bytes + 1, size - 1);
  }
  return 0;
}
