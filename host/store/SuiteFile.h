// The file of one suite: a table of keys in a database that several processes read and write at
// once.
#pragma once

#include "core/platform/Defaults.h"
#include "host/store/Sqlite.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include <sys/types.h>

namespace vitrelle::host {

/// Up to where a reader has seen a suite's changes.
struct SeenChanges {
  std::uint64_t file = 0;    ///< which of the files that stood at the path, counted from 1
  std::int64_t revision = 0; ///< of the last change in it
};

/// Opens the file anew when it was removed or replaced since the last call. Reading never creates
/// anything. For one thread at a time.
class SuiteFile final {
 public:
  SuiteFile(std::string home, const std::string& suiteName);

  Result<std::optional<StoreValue>> value(const std::string& key);
  Status set(const std::string& key, const StoreValue& value);
  Status remove(const std::string& key);
  Result<std::vector<std::string>> keys();

  /// The keys that were written or removed since `seen`, which moves on. All keys of the file when
  /// it is another than before.
  Result<std::vector<std::string>> changes(SeenChanges& seen);

  /// Wakes everyone who watches the home folder.
  void poke() const;

 private:
  struct Open {
    dev_t device;
    ino_t inode;
    SqliteConnection connection;
    SqliteStatement read;
    SqliteStatement write;
    SqliteStatement remove;
    SqliteStatement list;
    SqliteStatement changed;
  };

  /// Null when there is no file.
  Result<Open*> open();
  Status create();
  Status write(const std::string& key, const StoreValue* value);

  std::string home_;
  std::string path_;
  std::string pokePath_;
  std::optional<Open> open_;
  std::uint64_t file_ = 0;
};

} // namespace vitrelle::host
