// SQLite as the store needs it: connections and statements that close themselves, stored values in
// and out, and errors as failures in words.
#pragma once

#include "core/platform/Defaults.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

struct sqlite3;
struct sqlite3_stmt;

namespace vitrelle::host {

/// How a file is opened.
enum class SqliteAccess {
  shared, ///< beside other programs that may write
  frozen, ///< for reading alone, of a file that nobody writes: makes no files beside it
};

class SqliteConnection final {
 public:
  /// The file must exist; an empty one becomes a database at the first change. `patience` is how
  /// long another program's lock is waited for, in milliseconds.
  static Result<SqliteConnection> open(const std::string& path, SqliteAccess access, int patience);

  /// Looks into the file for the first time. Comes before all else.
  Status begin();
  Status execute(const char* sql);
  void setPatience(int milliseconds);
  /// What went wrong last, in words.
  Failure failure() const;
  /// Whether what went wrong last may come of files beside the database that can't be made.
  bool missesFiles() const;
  /// Keeps the database open until the process ends: closing would touch what is no longer there.
  void abandon() { static_cast<void>(database_.release()); }

 private:
  friend class SqliteStatement;
  struct Close {
    void operator()(sqlite3* database) const;
  };
  std::string path_;
  std::unique_ptr<sqlite3, Close> database_;
};

/// A prepared statement. Its connection must outlive it.
class SqliteStatement final {
 public:
  static Result<SqliteStatement> prepare(SqliteConnection& connection, const char* sql);
  /// Goes with a connection that is abandoned.
  void abandon() { static_cast<void>(statement_.release()); }

 private:
  friend class SqliteRun;
  struct Finalise {
    void operator()(sqlite3_stmt* statement) const;
  };
  std::unique_ptr<sqlite3_stmt, Finalise> statement_;
};

/// One run of a statement, which is ready for its next run when this ends.
class SqliteRun final {
 public:
  explicit SqliteRun(const SqliteStatement& statement);
  ~SqliteRun();
  SqliteRun(const SqliteRun&) = delete;
  SqliteRun& operator=(const SqliteRun&) = delete;

  // Places count from 1. What is bound must outlive the run.
  void bind(int place, std::int64_t number);
  void bind(int place, const std::string& text);
  /// Binds the name of the value's kind, and the value itself to the next place.
  void bindTyped(int place, const StoreValue& value);

  enum class Step { row, done, failed };
  Step step();

  // Columns of the present row, from 0.
  std::string text(int column) const;
  std::int64_t integer(int column) const;
  /// The value in the column after `column`, where the name of its kind stands. One that is not of
  /// that kind is given as what it is, for its readers to refuse; nothing in its place if it is no
  /// value at all.
  std::optional<StoreValue> typed(int column) const;

 private:
  sqlite3_stmt* statement_;
};

} // namespace vitrelle::host
