#include "host/store/SuiteFile.h"

#include "host/files/Descriptor.h"
#include "host/files/HomeFolder.h"
#include "host/files/PendingFile.h"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <limits>
#include <optional>
#include <string_view>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vitrelle::host {

namespace {

// `rev` counts all changes of the file. A removed key keeps its row, of type "removed", so that
// those who watch the file learn of it. The log comes last: on a full disk, what is only in the log
// would stay behind when the file is linked into place.
constexpr const char* schemaSql =
    "BEGIN IMMEDIATE;"
    "CREATE TABLE IF NOT EXISTS kv("
    " key TEXT PRIMARY KEY NOT NULL, type TEXT NOT NULL, value, rev INTEGER NOT NULL);"
    "CREATE INDEX IF NOT EXISTS kv_rev ON kv(rev);"
    "COMMIT;"
    "PRAGMA journal_mode=WAL";

constexpr const char* readSql = "SELECT type, value FROM kv WHERE key = ?1 AND type <> 'removed'";

constexpr const char* writeSql =
    "INSERT INTO kv(key, type, value, rev)"
    " VALUES(?1, ?2, ?3, (SELECT ifnull(max(rev), 0) + 1 FROM kv))"
    " ON CONFLICT(key) DO UPDATE"
    " SET type = excluded.type, value = excluded.value, rev = excluded.rev";

constexpr const char* removeSql =
    "UPDATE kv SET type = 'removed', value = NULL, rev = (SELECT max(rev) + 1 FROM kv)"
    " WHERE key = ?1 AND type <> 'removed'";

constexpr const char* listSql = "SELECT key FROM kv WHERE type <> 'removed' ORDER BY key";

constexpr const char* changedSql = "SELECT key, rev FROM kv WHERE rev > ?1 ORDER BY rev";

constexpr std::array<const char*, 5> statements{readSql, writeSql, removeSql, listSql, changedSql};

/// SQLite's own limit, less the longest name that it puts behind the database's.
constexpr std::size_t longestPath = 512 - std::string_view("-journal").size();

/// How long another program's lock is waited for, in milliseconds.
constexpr int patient = 5000; ///< while a store is made
constexpr int impatient = 20;

constexpr const char* notRegular = "it is no regular file";

Failure systemFailure(const std::string& path) {
  return {path, std::strerror(errno)};
}

/// A folder that is gone again with this. Until then it is locked, by which others tell it from one
/// that a killed process left.
class TemporaryFolder final {
 public:
  explicit TemporaryFolder(const std::string& pattern) {
    constexpr int attempts = 100;
    for (int attempt = 0; attempt < attempts && !lock_; ++attempt) {
      path_ = pattern;
      if (!mkdtemp(path_.data())) break;
      lock_ = Descriptor(::open(path_.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
      struct stat status {};
      // Someone who clears up may have been faster.
      const bool ours = lock_ && flock(lock_.get(), LOCK_EX | LOCK_NB) == 0 &&
                        fstat(lock_.get(), &status) == 0 && status.st_nlink != 0;
      if (!ours) lock_ = Descriptor();
    }
    if (!lock_) path_.clear();
  }
  ~TemporaryFolder() {
    std::error_code ignored;
    if (!path_.empty()) std::filesystem::remove_all(path_, ignored);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  /// Empty when it could not be made.
  const std::string& path() const { return path_; }

 private:
  std::string path_;
  Descriptor lock_;
};

Status fillDatabase(const std::string& path) {
  Result<SqliteConnection> opened = SqliteConnection::open(path, SqliteAccess::shared, patient);
  if (!opened) return opened.failure();
  SqliteConnection connection = std::move(opened).value();
  const Status begun = connection.begin();
  return begun ? connection.execute(schemaSql) : begun;
}

Status makeDatabase(const std::string& path) {
  // SQLite gives the files beside the database the mode of the database.
  const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
  if (file < 0) return systemFailure(path);
  close(file);
  return fillDatabase(path);
}

} // namespace

SuiteFile::SuiteFile(std::string home, const std::string& suiteName, int patienceMilliseconds)
    : home_(std::move(home)),
      path_(home_ + "/" + suiteName + ".sqlite"),
      pokePath_(home_ + "/" + suiteName + ".poke"),
      longPatience_(patienceMilliseconds),
      patience_(patienceMilliseconds) {}

void SuiteFile::setPatient(bool isPatient) {
  const int wanted = isPatient ? longPatience_ : impatient;
  if (wanted != patience_ && open_) open_->connection.setPatience(wanted);
  patience_ = wanted;
}

Result<SuiteFile::Open*> SuiteFile::open(Purpose purpose) {
  struct stat status {};
  if (stat(path_.c_str(), &status) != 0) {
    const int error = errno;
    leave();
    if (error == ENOENT || error == ENOTDIR) return nullptr;
    return Failure{path_, std::strerror(error)};
  }
  if (!S_ISREG(status.st_mode)) return Failure{path_, notRegular};
  const Stamp stamp{status.st_dev, status.st_ino};
  if (open_ && open_->stamp != stamp) leave();
  if (status.st_size == 0) {
    if (content().logged) return Failure{path_, "the file is damaged"};
    leave();
    return nullptr;
  }
  if (open_ && open_->frozen && (purpose == Purpose::writing || open_->frozen != content())) {
    leave();
  }
  if (open_ && !open_->frozen) {
    const off_t bytes = indexBytes();
    // SQLite reads it as memory: what is not there any more ends the process.
    if (bytes < open_->indexBytes) {
      return Failure{path_ + "-shm", "another program cut it short; Vitrelle has to start again"};
    }
    open_->indexBytes = bytes;
  }
  if (open_) return &*open_;
  if (const Status usable = checkCompanions(); !usable) return usable.failure();
  ++file_;

  bool missesFiles = false;
  Result<Open> opened = connect(stamp, std::nullopt, missesFiles);
  if (const Content now = content();
      !opened && missesFiles && purpose == Purpose::reading && !now.logged) {
    Result<Open> frozen = connect(stamp, now, missesFiles);
    if (frozen) opened = std::move(frozen);
  }
  if (!opened && missesFiles && purpose == Purpose::reading && content().logged) {
    return Failure{path_, "its latest changes can't be read without writing beside it"};
  }
  if (!opened) return opened.failure();
  open_.emplace(std::move(opened).value());
  return &*open_;
}

/// `missesFiles` tells whether the reason may be that the files beside the database can't be made.
Result<SuiteFile::Open> SuiteFile::connect(const Stamp& stamp, std::optional<Content> frozen,
                                           bool& missesFiles) const {
  const SqliteAccess access = frozen ? SqliteAccess::frozen : SqliteAccess::shared;
  Result<SqliteConnection> opened = SqliteConnection::open(path_, access, patience_);
  if (!opened) return opened.failure();
  SqliteConnection connection = std::move(opened).value();
  if (const Status begun = connection.begin(); !begun) {
    missesFiles = connection.missesFiles();
    return begun.failure();
  }
  std::vector<SqliteStatement> prepared;
  for (const char* sql : statements) {
    Result<SqliteStatement> statement = SqliteStatement::prepare(connection, sql);
    if (!statement) return statement.failure();
    prepared.push_back(std::move(statement).value());
  }
  return Open{stamp,
              frozen,
              indexBytes(),
              std::move(connection),
              std::move(prepared[0]),
              std::move(prepared[1]),
              std::move(prepared[2]),
              std::move(prepared[3]),
              std::move(prepared[4])};
}

void SuiteFile::leave() {
  if (!open_) return;
  ++file_;
  if (!open_->frozen && indexBytes() < open_->indexBytes) {
    // Closing would look into it.
    for (SqliteStatement* statement :
         {&open_->read, &open_->write, &open_->remove, &open_->list, &open_->changed}) {
      statement->abandon();
    }
    open_->connection.abandon();
  }
  open_.reset();
}

Status SuiteFile::checkCompanions() const {
  if (path_.size() > longestPath) {
    return Failure{home_, "the path is too long for a store; " +
                              std::to_string(longestPath - (path_.size() - home_.size())) +
                              " characters are the most"};
  }
  for (const char* suffix : {"-wal", "-shm", "-journal"}) {
    struct stat status {};
    const std::string path = path_ + suffix;
    if (stat(path.c_str(), &status) == 0 && !S_ISREG(status.st_mode)) {
      return Failure{path, notRegular};
    }
  }
  return success();
}

SuiteFile::Content SuiteFile::content() const {
  struct stat status {};
  Content content;
  if (stat(path_.c_str(), &status) == 0) {
    content = {.bytes = status.st_size,
               .seconds = status.st_mtim.tv_sec,
               .nanoseconds = status.st_mtim.tv_nsec};
  }
  content.logged = stat((path_ + "-wal").c_str(), &status) == 0 && status.st_size > 0;
  return content;
}

/// As large as can be where there is no such file: SQLite then goes on with the one that it mapped.
off_t SuiteFile::indexBytes() const {
  struct stat status {};
  if (stat((path_ + "-shm").c_str(), &status) != 0) return std::numeric_limits<off_t>::max();
  return status.st_size;
}

/// The database is made whole elsewhere and then linked into place, so that no process meets a
/// half-made one; of two processes that do so at once, one wins and both use its file. An empty
/// file that stands there already is filled where it is.
Status SuiteFile::create() {
  const std::string temporaryRoot = home_ + "/tmp";
  const Status made = makeFolder(temporaryRoot);
  if (!made) return made;
  if (const Status usable = checkCompanions(); !usable) return usable.failure();
  struct stat status {};
  if (stat(path_.c_str(), &status) == 0 && status.st_size == 0) return fillDatabase(path_);
  const TemporaryFolder folder(temporaryRoot + "/store.XXXXXX");
  if (folder.path().empty()) return systemFailure(temporaryRoot);
  const std::string database = folder.path() + "/new.sqlite";
  const Status created = makeDatabase(database);
  if (!created) return Failure{path_, created.failure().why};
  if (link(database.c_str(), path_.c_str()) != 0 && errno != EEXIST) return systemFailure(path_);
  syncFolder(home_);
  return success();
}

Result<std::optional<StoreValue>> SuiteFile::value(const std::string& key) {
  const Result<Open*> file = open(Purpose::reading);
  if (!file) return file.failure();
  if (!*file) return std::optional<StoreValue>();
  SqliteRun run((*file)->read);
  run.bind(1, key);
  switch (run.step()) {
  case SqliteRun::Step::failed:
    return (*file)->connection.failure();
  case SqliteRun::Step::done:
    return std::optional<StoreValue>();
  case SqliteRun::Step::row:
    break;
  }
  return run.typed(0);
}

Status SuiteFile::set(const std::string& key, const StoreValue& value) {
  return write(key, &value);
}

Status SuiteFile::remove(const std::string& key) {
  return write(key, nullptr);
}

Status SuiteFile::write(const std::string& key, const StoreValue* value) {
  Result<Open*> file = open(Purpose::writing);
  if (file && !*file) {
    if (!value) return success();
    const Status created = create();
    if (!created) return created;
    file = open(Purpose::writing);
  }
  if (!file) return file.failure();
  if (!*file) return Failure{path_, "it was removed while it was being written"};
  // One statement is one transaction: it takes the write lock before it reads the last revision.
  SqliteRun run(value ? (*file)->write : (*file)->remove);
  run.bind(1, key);
  if (value) run.bindTyped(2, *value);
  if (run.step() != SqliteRun::Step::done) return (*file)->connection.failure();
  return success();
}

void SuiteFile::poke() const {
  // What the watchers wake from is the closing of a file that was open for writing.
  constexpr int flags = O_WRONLY | O_CREAT | O_NONBLOCK | O_CLOEXEC;
  const int file = ::open(pokePath_.c_str(), flags, 0600);
  if (file >= 0) close(file);
}

Result<std::vector<std::string>> SuiteFile::keys() {
  const Result<Open*> file = open(Purpose::reading);
  if (!file) return file.failure();
  std::vector<std::string> keys;
  if (!*file) return keys;
  SqliteRun run((*file)->list);
  SqliteRun::Step step = run.step();
  for (; step == SqliteRun::Step::row; step = run.step())
    keys.push_back(run.text(0));
  if (step == SqliteRun::Step::failed) return (*file)->connection.failure();
  return keys;
}

Result<std::vector<std::string>> SuiteFile::changes(SeenChanges& seen) {
  const Result<Open*> file = open(Purpose::reading);
  if (!file) return file.failure();
  if (seen.file != file_) seen = {.file = file_};
  std::vector<std::string> keys;
  if (!*file) return keys;
  SqliteRun run((*file)->changed);
  run.bind(1, seen.revision);
  std::int64_t revision = seen.revision;
  SqliteRun::Step step = run.step();
  for (; step == SqliteRun::Step::row; step = run.step()) {
    keys.push_back(run.text(0));
    revision = run.integer(1);
  }
  if (step == SqliteRun::Step::failed) return (*file)->connection.failure();
  seen.revision = revision;
  return keys;
}

} // namespace vitrelle::host
