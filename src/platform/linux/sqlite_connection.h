#ifndef ZQ7STANDARD_SRC_PLATFORM_LINUX_SQLITE_CONNECTION_H_
#define ZQ7STANDARD_SRC_PLATFORM_LINUX_SQLITE_CONNECTION_H_

#include <sqlite3.h>

#include <cstdint>
#include <filesystem>
#include <span>
#include <string_view>

namespace ZQ7Standard {

/// A connection to a database with its prepared statements, used by one thread at a time, and only
/// in the process that opened it.
///
/// The child of a fork inherits the parent's connections in memory, and with them SQLite's record,
/// one per file and process, of which files are locked; but the locks are the parent's alone. So
/// before a child opens a connection of its own, it lets go of all that it inherited, leaving the
/// parent's files unchanged.
///
/// The database may come from someone else: triggers and views in it are not used, nor functions in
/// table definitions that SQLite considers unsafe.
class SqliteConnection {
 public:
  enum class WhenMissing { kFail, kMake };

  /// Opens `file`, whose path has no symbolic links. A file that this creates is private to its
  /// user.
  SqliteConnection(const std::filesystem::path& file, WhenMissing when_missing);
  SqliteConnection(const SqliteConnection&) = delete;
  SqliteConnection& operator=(const SqliteConnection&) = delete;
  ~SqliteConnection();

  /// Whether this process opened the file for writing.
  bool IsUsable() const;

  /// Whether the file has been moved or replaced since it was opened.
  bool WasMoved();

  /// A number that changes with the database state seen by the last statement.
  unsigned DataVersion();

  /// The number of rows changed by the last writing statement.
  int Changes() { return sqlite3_changes(db_); }

  /// Runs statements without parameters; returns whether all succeeded.
  bool Execute(const char* sql);

  /// The number in the first row of a statement's result; `fallback` if there is none.
  std::int64_t Number(const char* sql, std::int64_t fallback);

  /// A statement that lives as long as the connection; null if the tables are not those that it
  /// needs.
  sqlite3_stmt* Prepare(const char* sql);

 private:
  static bool LetGoOfInherited();
  bool Protect();
  bool LetGo();
  void Close();

  sqlite3* db_ = nullptr;
  unsigned forks_;  // the number of forks between the first process and the one that opened it
};

// Parameters of a statement. Texts and bytes must live until the statement has run.
struct SqliteBytes {
  std::string_view bytes;
};
void Bind(sqlite3_stmt* statement, int index, std::int64_t number);
void Bind(sqlite3_stmt* statement, int index, std::string_view utf8);
void Bind(sqlite3_stmt* statement, int index, SqliteBytes data);

/// Makes `statement` ready to run with `parameters` for ?1, ?2 and so on.
void Start(sqlite3_stmt* statement, const auto&... parameters) {
  sqlite3_reset(statement);
  int index = 0;
  (Bind(statement, ++index, parameters), ...);
}

/// Runs a statement that returns no rows; returns whether it succeeded.
bool Finish(sqlite3_stmt* statement);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_LINUX_SQLITE_CONNECTION_H_
