#include "platform/linux/sqlite_connection.h"

#include <fcntl.h>
#include <pthread.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <mutex>
#include <vector>

namespace ZQ7Standard {
namespace {

// Long enough for a queue of writers waiting for a slow disk.
constexpr int kBusyMilliseconds = 10'000;

struct Setting {
  int number;
  int value;
};
constexpr std::array<Setting, 4> kProtection = {{
    {SQLITE_DBCONFIG_DEFENSIVE, 1},
    {SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0},
    {SQLITE_DBCONFIG_ENABLE_TRIGGER, 0},
    {SQLITE_DBCONFIG_ENABLE_VIEW, 0},
}};

/// A process's connections. Never destroyed, because destructors of static objects may close
/// connections.
struct Process {
  std::mutex mutex;
  std::vector<SqliteConnection*> connections;  // including inherited ones
  unsigned forks = 0;
  bool may_open = true;  // false if it could not let go of an inherited connection
};

Process& ThisProcess();

void LockProcess() {
  ThisProcess().mutex.lock();
}

void UnlockProcess() {
  ThisProcess().mutex.unlock();
}

void UnlockChild() {
  ++ThisProcess().forks;
  UnlockProcess();
}

Process& ThisProcess() {
  static auto* const process = new Process;
  return *process;
}

void WatchForks() {
  static const int watched = pthread_atfork(LockProcess, UnlockProcess, UnlockChild);
  static_cast<void>(watched);
}

/// Creates the file `file`, empty, if it does not exist; SQLite itself would let others read it.
/// Closing a file releases the process's locks on it, but no connection has locks on a new file as
/// long as the caller holds the mutex.
void MakeFile(const std::filesystem::path& file) {
  constexpr mode_t kUserOnly = S_IRUSR | S_IWUSR;
  const int made = open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, kUserOnly);
  if (made >= 0) close(made);
}

}  // namespace

SqliteConnection::SqliteConnection(const std::filesystem::path& file, WhenMissing when_missing) {
  WatchForks();
  Process& process = ThisProcess();
  const std::lock_guard lock(process.mutex);
  forks_ = process.forks;
  process.connections.push_back(this);
  if (!LetGoOfInherited()) return;
  if (when_missing == WhenMissing::kMake) MakeFile(file);
  constexpr int kFlags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOFOLLOW | SQLITE_OPEN_NOMUTEX;
  const int result = sqlite3_open_v2(file.c_str(), &db_, kFlags, nullptr);
  // A file without the right to write would be opened read-only.
  const bool writable = result == SQLITE_OK && sqlite3_db_readonly(db_, "main") == 0;
  if (!writable || !Protect()) Close();
  if (db_ != nullptr) sqlite3_busy_timeout(db_, kBusyMilliseconds);
}

SqliteConnection::~SqliteConnection() {
  Process& process = ThisProcess();
  const std::lock_guard lock(process.mutex);
  std::erase(process.connections, this);
  if (forks_ == process.forks) {
    Close();
  } else {
    process.may_open = LetGo() && process.may_open;
  }
}

bool SqliteConnection::IsUsable() const {
  return forks_ == ThisProcess().forks && db_ != nullptr;
}

bool SqliteConnection::WasMoved() {
  int moved = 0;
  sqlite3_file_control(db_, "main", SQLITE_FCNTL_HAS_MOVED, &moved);
  return moved != 0;
}

unsigned SqliteConnection::DataVersion() {
  unsigned version = 0;
  sqlite3_file_control(db_, "main", SQLITE_FCNTL_DATA_VERSION, &version);
  return version;
}

bool SqliteConnection::Execute(const char* sql) {
  return sqlite3_exec(db_, sql, nullptr, nullptr, nullptr) == SQLITE_OK;
}

std::int64_t SqliteConnection::Number(const char* sql, std::int64_t fallback) {
  sqlite3_stmt* const statement = Prepare(sql);
  const bool found = sqlite3_step(statement) == SQLITE_ROW;
  const std::int64_t number = found ? sqlite3_column_int64(statement, 0) : fallback;
  sqlite3_finalize(statement);
  return number;
}

sqlite3_stmt* SqliteConnection::Prepare(const char* sql) {
  sqlite3_stmt* statement = nullptr;
  sqlite3_prepare_v3(db_, sql, -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr);
  return statement;
}

bool SqliteConnection::Protect() {
  return std::ranges::all_of(kProtection, [this](const Setting& setting) {
    return sqlite3_db_config(db_, setting.number, setting.value, nullptr) == SQLITE_OK;
  });
}

/// Whether the process may open databases now. The caller holds the mutex.
bool SqliteConnection::LetGoOfInherited() {
  Process& process = ThisProcess();
  for (SqliteConnection* const connection : process.connections) {
    if (connection->forks_ == process.forks) continue;
    process.may_open = connection->LetGo() && process.may_open;
  }
  return process.may_open;
}

/// Closes an inherited connection without a checkpoint, which is the parent's job, and without
/// removing the log. Fails if another thread of the parent was writing at the fork: closing would
/// roll back, in memory shared with the parent.
bool SqliteConnection::LetGo() {
  if (db_ == nullptr) return true;
  if (sqlite3_txn_state(db_, nullptr) == SQLITE_TXN_WRITE) return false;
  sqlite3_db_config(db_, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
  Close();
  return true;
}

void SqliteConnection::Close() {
  if (db_ == nullptr) return;
  while (sqlite3_stmt* const statement = sqlite3_next_stmt(db_, nullptr)) {
    sqlite3_finalize(statement);
  }
  sqlite3_close(db_);
  db_ = nullptr;
}

void Bind(sqlite3_stmt* statement, int index, std::int64_t number) {
  sqlite3_bind_int64(statement, index, number);
}

void Bind(sqlite3_stmt* statement, int index, std::string_view utf8) {
  sqlite3_bind_text64(statement, index, utf8.data(), utf8.size(), SQLITE_STATIC, SQLITE_UTF8);
}

void Bind(sqlite3_stmt* statement, int index, SqliteBytes data) {
  // Without an address the parameter would be NULL.
  const char* const bytes = data.bytes.empty() ? "" : data.bytes.data();
  sqlite3_bind_blob64(statement, index, bytes, data.bytes.size(), SQLITE_STATIC);
}

bool Finish(sqlite3_stmt* statement) {
  const bool done = sqlite3_step(statement) == SQLITE_DONE;
  sqlite3_reset(statement);
  return done;
}

}  // namespace ZQ7Standard
