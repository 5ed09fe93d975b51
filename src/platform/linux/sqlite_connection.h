#ifndef ZQ7STANDARD_SRC_PLATFORM_LINUX_SQLITE_CONNECTION_H_
#define ZQ7STANDARD_SRC_PLATFORM_LINUX_SQLITE_CONNECTION_H_

#include <sqlite3.h>

#include <cstdint>
#include <filesystem>
#include <span>
#include <string_view>

namespace ZQ7Standard {

/// A connection to a database with its prepared statements, used by one thread at a
/// time, and only in the process that opened it.
///
/// The child of a fork has the parent's connections in its memory, and with them
/// SQLite's belief, held once for each file of a process, that files are locked;
/// but the locks are the parent's alone. So before a child opens a connection of
/// its own, it lets go of all that it inherited, in a way that leaves the parent's
/// files as they are.
///
/// The database may come from someone else: no trigger and no view in it is used, and no
/// function in the definition of a table that SQLite takes for unsafe.
class SqliteConnection {
 public:
  enum class WhenMissing { kFail, kMake };

  /// Opens `file`, which is named without symbolic links. One that is made is for its
  /// user alone.
  SqliteConnection(const std::filesystem::path& file, WhenMissing when_missing);
  SqliteConnection(const SqliteConnection&) = delete;
  SqliteConnection& operator=(const SqliteConnection&) = delete;
  ~SqliteConnection();

  /// Whether the file was opened for writing, by this process.
  bool IsUsable() const;

  /// Whether the file is no longer where it was opened.
  bool WasMoved();

  /// A number that changes with the state of the database that the last statement saw.
  unsigned DataVersion();

  /// How many rows the last statement that writes changed.
  int Changes() { return sqlite3_changes(db_); }

  /// Runs statements without parameters; whether all went well.
  bool Execute(const char* sql);

  /// The number that a statement gives in its first row; `fallback` without one.
  std::int64_t Number(const char* sql, std::int64_t fallback);

  /// A statement that lives as long as the connection; nullptr when the tables are
  /// not those that it needs.
  sqlite3_stmt* Prepare(const char* sql);

 private:
  static bool LetGoOfInherited();
  bool Protect();
  bool LetGo();
  void Close();

  sqlite3* db_ = nullptr;
  unsigned forks_;  // how many lie between the first process and the one that opened it
};

// Parameters of a statement. Texts and bytes have to stay until the statement has run.
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

/// Runs a statement that gives no rows; whether it went well.
bool Finish(sqlite3_stmt* statement);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_LINUX_SQLITE_CONNECTION_H_
