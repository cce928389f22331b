#include "host/store/SuiteFile.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vitrelle::host {

namespace {

// `rev` counts all changes of the file. A removed key keeps its row, of type "removed", so that
// those who watch the file learn of it. The log comes last: on a full disk, what is only in the log
// would stay behind when the file is linked into place.
constexpr const char* schemaSql =
    "CREATE TABLE kv("
    " key TEXT PRIMARY KEY NOT NULL, type TEXT NOT NULL, value, rev INTEGER NOT NULL);"
    "CREATE INDEX kv_rev ON kv(rev);"
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

Failure systemFailure(const std::string& path) {
  return {path, std::strerror(errno)};
}

/// Makes the folder and the missing ones above it, for the user alone.
Status makeFolder(const std::filesystem::path& folder) {
  if (mkdir(folder.c_str(), 0700) == 0 || errno == EEXIST) return success();
  if (errno != ENOENT || !folder.has_relative_path()) return systemFailure(folder);
  const Status above = makeFolder(folder.parent_path());
  if (!above) return above;
  if (mkdir(folder.c_str(), 0700) == 0 || errno == EEXIST) return success();
  return systemFailure(folder);
}

/// Makes the names in the folder durable.
void syncFolder(const std::string& path) {
  const int folder = ::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (folder < 0) return;
  fsync(folder);
  close(folder);
}

/// A folder that is gone again with this.
class TemporaryFolder final {
 public:
  explicit TemporaryFolder(std::string pattern) : path_(std::move(pattern)) {
    if (!mkdtemp(path_.data())) path_.clear();
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
};

Status makeDatabase(const std::string& path) {
  // SQLite gives the files beside the database the mode of the database.
  const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
  if (file < 0) return systemFailure(path);
  close(file);
  Result<SqliteConnection> connection = SqliteConnection::open(path);
  if (!connection) return connection.failure();
  return SqliteConnection(std::move(connection).value()).execute(schemaSql);
}

} // namespace

SuiteFile::SuiteFile(std::string home, const std::string& suiteName)
    : home_(std::move(home)),
      path_(home_ + "/" + suiteName + ".sqlite"),
      pokePath_(home_ + "/" + suiteName + ".poke") {}

Result<SuiteFile::Open*> SuiteFile::open() {
  struct stat status {};
  if (stat(path_.c_str(), &status) != 0) {
    const int error = errno;
    if (open_) ++file_;
    open_.reset();
    if (error == ENOENT || error == ENOTDIR) return nullptr;
    return Failure{path_, std::strerror(error)};
  }
  if (open_ && open_->device == status.st_dev && open_->inode == status.st_ino) return &*open_;
  open_.reset();
  ++file_;

  Result<SqliteConnection> opened = SqliteConnection::open(path_);
  if (!opened) return opened.failure();
  SqliteConnection connection = std::move(opened).value();
  std::vector<SqliteStatement> statements;
  for (const char* sql : {readSql, writeSql, removeSql, listSql, changedSql}) {
    Result<SqliteStatement> statement = SqliteStatement::prepare(connection, sql);
    if (!statement) return statement.failure();
    statements.push_back(std::move(statement).value());
  }
  open_.emplace(Open{status.st_dev, status.st_ino, std::move(connection), std::move(statements[0]),
                     std::move(statements[1]), std::move(statements[2]), std::move(statements[3]),
                     std::move(statements[4])});
  return &*open_;
}

/// The database is made whole elsewhere and then linked into place, so that no process meets a
/// half-made one; of two processes that do so at once, one wins and both use its file.
Status SuiteFile::create() {
  const std::string temporaryRoot = home_ + "/tmp";
  const Status made = makeFolder(temporaryRoot);
  if (!made) return made;
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
  const Result<Open*> file = open();
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
  std::optional<StoreValue> value = run.typed(0);
  if (!value) return Failure{path_ + ": " + key, "the value is not of the type it says"};
  return value;
}

Status SuiteFile::set(const std::string& key, const StoreValue& value) {
  return write(key, &value);
}

Status SuiteFile::remove(const std::string& key) {
  return write(key, nullptr);
}

Status SuiteFile::write(const std::string& key, const StoreValue* value) {
  Result<Open*> file = open();
  if (file && !*file) {
    if (!value) return success();
    const Status created = create();
    if (!created) return created;
    file = open();
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
  const int file = ::open(pokePath_.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
  if (file >= 0) close(file);
}

Result<std::vector<std::string>> SuiteFile::keys() {
  const Result<Open*> file = open();
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
  const Result<Open*> file = open();
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
