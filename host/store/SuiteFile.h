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
/// anything in the home but the files that SQLite keeps beside a database that others may write;
/// where even those can't be made (a read-only home, a full disk) it does without. An empty file
/// holds no values, and takes some. For one thread at a time.
class SuiteFile final {
 public:
  SuiteFile(std::string home, const std::string& suiteName, int patienceMilliseconds);
  ~SuiteFile() { leave(); }
  SuiteFile(const SuiteFile&) = delete;
  SuiteFile& operator=(const SuiteFile&) = delete;

  Result<std::optional<StoreValue>> value(const std::string& key);
  Status set(const std::string& key, const StoreValue& value);
  Status remove(const std::string& key);
  Result<std::vector<std::string>> keys();

  /// The keys that were written or removed since `seen`, which moves on. All keys of the file when
  /// it is another than before.
  Result<std::vector<std::string>> changes(SeenChanges& seen);

  /// Wakes everyone who watches the home folder.
  void poke() const;

  /// Whether another program's lock is waited for. A suite that could not be read is tried again
  /// often, and each try would hold its caller up.
  void setPatient(bool patient);

 private:
  enum class Purpose { reading, writing };

  /// By what a file is known again.
  struct Stamp {
    dev_t device = 0;
    ino_t inode = 0;
    bool operator==(const Stamp&) const = default;
  };
  /// By what a change to a file shows that was opened as one that does not change.
  struct Content {
    off_t bytes = 0;
    time_t seconds = 0;
    long nanoseconds = 0;
    bool logged = false; ///< whether there are changes that are not in it yet
    bool operator==(const Content&) const = default;
  };

  struct Open {
    Stamp stamp;
    std::optional<Content> frozen; ///< set when the file was opened as one that does not change
    off_t indexBytes;              ///< of the mapped file beside the database
    SqliteConnection connection;
    SqliteStatement read;
    SqliteStatement write;
    SqliteStatement remove;
    SqliteStatement list;
    SqliteStatement changed;
  };

  /// Null when there is no file, or an empty one.
  Result<Open*> open(Purpose purpose);
  Result<Open> connect(const Stamp& stamp, std::optional<Content> frozen, bool& missesFiles) const;
  /// Lets go of the file.
  void leave();
  /// The files beside the database, as far as they can keep it from being used.
  Status checkCompanions() const;
  Content content() const;
  off_t indexBytes() const;
  Status create();
  Status write(const std::string& key, const StoreValue* value);

  std::string home_;
  std::string path_;
  std::string pokePath_;
  std::optional<Open> open_;
  std::uint64_t file_ = 0;
  int longPatience_; ///< for another program's lock, in milliseconds
  int patience_;
};

} // namespace vitrelle::host
