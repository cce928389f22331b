// Garbage in the store. The first byte chooses: a whole file of the rest, or one row of it in a
// good file. Reading, writing and watching never crash, a value that was written can be read, and
// every key can be asked for a value of its type.
#include "core/store/GroupStore.h"
#include "host/store/SqliteDefaults.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <tuple>
#include <unistd.h>

#include <sqlite3.h>

namespace {

namespace fs = std::filesystem;
using namespace vitrelle;

const fs::path& home() {
  static const fs::path folder = [] {
    std::string pattern = fs::temp_directory_path() / "stored-values.XXXXXX";
    const fs::path made = mkdtemp(pattern.data());
    std::atexit([] { fs::remove_all(home()); });
    return made;
  }();
  return folder;
}

Defaults open() {
  return host::makeSqliteDefaults(
      home(), {.whenReadable = [](int, const std::function<void()>&) { return Subscription(); },
               .every = [](double, const std::function<void()>&) { return Subscription(); }});
}

std::string groupFile() {
  return home() / (std::string(groupIdentifier) + ".sqlite");
}

/// The bytes as one row of every key: a type, and a value of SQLite's own four kinds.
void putRow(const std::uint8_t* bytes, std::size_t size) {
  static const char* const types[] = {"Int",  "Double", "Bool",    "String",
                                      "Data", "Date",   "removed", "x"};
  if (size < 1 || !open().set(Suite::group, "any", true)) return;
  sqlite3* database = nullptr;
  sqlite3_stmt* insert = nullptr;
  sqlite3_open(groupFile().c_str(), &database);
  sqlite3_prepare_v2(database, "INSERT OR REPLACE INTO kv VALUES(?1, ?2, ?3, 7)", -1, &insert,
                     nullptr);
  const auto length = static_cast<int>(size - 1);
  const auto* content = reinterpret_cast<const char*>(bytes + 1);
  const std::string text(content, size - 1);
  std::apply(
      [&](const auto&... keys) {
        const auto put = [&](const char* key) {
          sqlite3_bind_text(insert, 1, key, -1, SQLITE_STATIC);
          sqlite3_bind_text(insert, 2, types[bytes[0] & 7], -1, SQLITE_STATIC);
          switch (bytes[0] >> 3 & 3) {
          case 0:
            sqlite3_bind_int64(insert, 3, std::strtoll(text.c_str(), nullptr, 10));
            break;
          case 1:
            sqlite3_bind_double(insert, 3, std::strtod(text.c_str(), nullptr));
            break;
          case 2:
            sqlite3_bind_text(insert, 3, content, length, SQLITE_STATIC);
            break;
          default:
            sqlite3_bind_blob(insert, 3, content, length, SQLITE_STATIC);
          }
          sqlite3_step(insert);
          sqlite3_reset(insert);
        };
        (put(keys.name), ...);
      },
      keys::groupKeys);
  sqlite3_finalize(insert);
  sqlite3_close(database);
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

void readEverything(const GroupStore& store) {
  std::apply([&](const auto&... keys) { (static_cast<void>(store.valueOrDefault(keys)), ...); },
             keys::groupKeys);
  forEachFamily([&](const auto& family) { static_cast<void>(store.loadRecords(family)); });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  if (size == 0) return 0;
  for (const char* suffix : {"", "-wal", "-shm"})
    fs::remove(groupFile() + suffix);
  if (bytes[0] & 1) {
    std::ofstream(groupFile(), std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes + 1), static_cast<std::streamsize>(size - 1));
  } else {
    putRow(bytes + 1, size - 1);
  }
  const Platform platform = platformOf(open());
  const GroupStore store(platform);
  readEverything(store);
  const Subscription watch = platform.defaults.watchKeys(Suite::group, [](const auto&) {});
  const StoreValue value = Data(bytes, bytes + size);
  if (platform.defaults.set(Suite::group, "written", value)) {
    const auto read = platform.defaults.value(Suite::group, "written");
    const bool damaged = bytes[0] & 1; // such a file may forget
    if (!damaged && (!read || *read != value)) std::abort();
  }
  static_cast<void>(platform.defaults.keys(Suite::group));
  return 0;
}
