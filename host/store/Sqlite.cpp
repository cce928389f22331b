#include "host/store/Sqlite.h"

#include <array>
#include <cmath>
#include <cstring>
#include <limits>

#include <sqlite3.h>

namespace vitrelle::host {

namespace {

/// By the index of the value's alternative in `StoreValue`.
constexpr std::array<const char*, std::variant_size_v<StoreValue>> typeNames{
    "Int", "Double", "Bool", "String", "Data", "Date"};

struct Words {
  int code;
  const char* words;
};
constexpr std::array<Words, 8> wordsByCode{{
    {SQLITE_NOTADB, "the file is not a store"},
    {SQLITE_CORRUPT, "the file is damaged"},
    {SQLITE_FULL, "the disk is full"},
    {SQLITE_READONLY, "the file or its folder is read-only"},
    {SQLITE_PERM, "the file or its folder is read-only"},
    {SQLITE_BUSY, "another program keeps it locked"},
    {SQLITE_TOOBIG, "the value is too long"},
    {SQLITE_NOMEM, "out of memory"},
}};

std::string bytes(sqlite3_stmt* statement, int column) {
  const void* blob = sqlite3_column_blob(statement, column);
  const auto length = static_cast<std::size_t>(sqlite3_column_bytes(statement, column));
  return blob ? std::string(static_cast<const char*>(blob), length) : std::string();
}

/// A path as the URI of a database that is only read and never changes.
std::string frozenUri(const std::string& path) {
  std::string uri = "file:";
  for (const char character : path) {
    constexpr const char* digits = "0123456789abcdef";
    const auto byte = static_cast<unsigned char>(character);
    if (std::strchr("%?#", character) != nullptr) {
      uri += {'%', digits[byte >> 4], digits[byte & 15]};
    } else {
      uri += character;
    }
  }
  return uri + "?immutable=1";
}

/// What stands in a column, by its own kind.
std::optional<StoreValue> plain(sqlite3_stmt* statement, int column) {
  switch (sqlite3_column_type(statement, column)) {
  case SQLITE_INTEGER:
    return std::int64_t{sqlite3_column_int64(statement, column)};
  case SQLITE_FLOAT:
    return sqlite3_column_double(statement, column);
  case SQLITE_TEXT:
    return bytes(statement, column);
  case SQLITE_BLOB: {
    const std::string content = bytes(statement, column);
    return Data(content.begin(), content.end());
  }
  default:
    return std::nullopt;
  }
}

/// SQLite keeps not-a-number as NULL.
std::optional<double> real(sqlite3_stmt* statement, int column) {
  switch (sqlite3_column_type(statement, column)) {
  case SQLITE_FLOAT:
  case SQLITE_INTEGER:
    return sqlite3_column_double(statement, column);
  case SQLITE_NULL:
    return std::numeric_limits<double>::quiet_NaN();
  default:
    return std::nullopt;
  }
}

} // namespace

void SqliteConnection::Close::operator()(sqlite3* database) const {
  sqlite3_close(database);
}

Result<SqliteConnection> SqliteConnection::open(const std::string& path, SqliteAccess access,
                                                int patience) {
  SqliteConnection connection;
  connection.path_ = path;
  const bool frozen = access == SqliteAccess::frozen;
  const int mode = frozen ? SQLITE_OPEN_READONLY | SQLITE_OPEN_URI : SQLITE_OPEN_READWRITE;
  sqlite3* database = nullptr;
  const int code = sqlite3_open_v2((frozen ? frozenUri(path) : path).c_str(), &database,
                                   mode | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE, nullptr);
  connection.database_.reset(database);
  if (code != SQLITE_OK) return connection.failure();
  connection.setPatience(patience);
  // The file may come from anywhere: nothing that its schema holds is run.
  sqlite3_db_config(database, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
  sqlite3_db_config(database, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
  sqlite3_db_config(database, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr);
  sqlite3_db_config(database, SQLITE_DBCONFIG_ENABLE_VIEW, 0, nullptr);
  return connection;
}

Status SqliteConnection::begin() {
  return execute("PRAGMA synchronous=FULL; PRAGMA cell_size_check=ON");
}

Status SqliteConnection::execute(const char* sql) {
  if (sqlite3_exec(database_.get(), sql, nullptr, nullptr, nullptr) != SQLITE_OK) return failure();
  return success();
}

void SqliteConnection::setPatience(int milliseconds) {
  sqlite3_busy_timeout(database_.get(), milliseconds);
}

Failure SqliteConnection::failure() const {
  const int code = sqlite3_extended_errcode(database_.get()) & 0xFF;
  for (const auto& [known, words] : wordsByCode) {
    if (code == known) return {path_, words};
  }
  const int systemError = sqlite3_system_errno(database_.get());
  if (code == SQLITE_CANTOPEN && systemError != 0) return {path_, std::strerror(systemError)};
  return {path_, sqlite3_errmsg(database_.get())};
}

bool SqliteConnection::missesFiles() const {
  switch (sqlite3_extended_errcode(database_.get()) & 0xFF) {
  case SQLITE_CANTOPEN:
  case SQLITE_READONLY:
  case SQLITE_IOERR:
  case SQLITE_FULL:
    return true;
  default:
    return false;
  }
}

void SqliteStatement::Finalise::operator()(sqlite3_stmt* statement) const {
  sqlite3_finalize(statement);
}

Result<SqliteStatement> SqliteStatement::prepare(SqliteConnection& connection, const char* sql) {
  sqlite3_stmt* statement = nullptr;
  if (sqlite3_prepare_v3(connection.database_.get(), sql, -1, SQLITE_PREPARE_PERSISTENT, &statement,
                         nullptr) != SQLITE_OK) {
    return connection.failure();
  }
  SqliteStatement prepared;
  prepared.statement_.reset(statement);
  return prepared;
}

SqliteRun::SqliteRun(const SqliteStatement& statement) : statement_(statement.statement_.get()) {}

SqliteRun::~SqliteRun() {
  sqlite3_reset(statement_);
  sqlite3_clear_bindings(statement_);
}

void SqliteRun::bind(int place, std::int64_t number) {
  sqlite3_bind_int64(statement_, place, number);
}

void SqliteRun::bind(int place, const std::string& text) {
  sqlite3_bind_text64(statement_, place, text.data(), text.size(), SQLITE_STATIC, SQLITE_UTF8);
}

void SqliteRun::bindTyped(int place, const StoreValue& value) {
  struct Binder {
    sqlite3_stmt* statement;
    int place;
    void operator()(std::int64_t number) const { sqlite3_bind_int64(statement, place, number); }
    void operator()(double number) const { sqlite3_bind_double(statement, place, number); }
    void operator()(bool flag) const { sqlite3_bind_int64(statement, place, flag ? 1 : 0); }
    void operator()(const std::string& text) const {
      sqlite3_bind_text64(statement, place, text.data(), text.size(), SQLITE_STATIC, SQLITE_UTF8);
    }
    void operator()(const Data& data) const {
      // A null pointer would be bound as NULL.
      const void* start = data.empty() ? static_cast<const void*>("") : data.data();
      sqlite3_bind_blob64(statement, place, start, data.size(), SQLITE_STATIC);
    }
    void operator()(Date date) const {
      sqlite3_bind_double(statement, place, date.secondsSinceReferenceDate);
    }
  };
  sqlite3_bind_text(statement_, place, typeNames[value.index()], -1, SQLITE_STATIC);
  std::visit(Binder{statement_, place + 1}, value);
}

SqliteRun::Step SqliteRun::step() {
  switch (sqlite3_step(statement_)) {
  case SQLITE_ROW:
    return Step::row;
  case SQLITE_DONE:
    return Step::done;
  default:
    return Step::failed;
  }
}

std::string SqliteRun::text(int column) const {
  return bytes(statement_, column);
}

std::int64_t SqliteRun::integer(int column) const {
  return sqlite3_column_int64(statement_, column);
}

std::optional<StoreValue> SqliteRun::typed(int column) const {
  const std::string type = text(column);
  const int valueColumn = column + 1;
  if (type == "Bool" && sqlite3_column_type(statement_, valueColumn) == SQLITE_INTEGER) {
    const std::int64_t flag = sqlite3_column_int64(statement_, valueColumn);
    if (flag == 0 || flag == 1) return flag == 1;
  }
  if (type == "Double") {
    if (const auto number = real(statement_, valueColumn)) return *number;
  }
  if (type == "Date") {
    if (const auto seconds = real(statement_, valueColumn)) return Date{*seconds};
  }
  return plain(statement_, valueColumn);
}

} // namespace vitrelle::host
