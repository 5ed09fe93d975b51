#include <sqlite3.h>

#include <cstdlib>
#include <iostream>

#include "bench/measure.h"
#include "bench/registry_inputs.h"

namespace ZQ7Standard::Bench {
namespace {

constexpr const char* kQuery = "SELECT data FROM settings WHERE path = ?1 AND name = ?2";
constexpr const char* kUpdate = "UPDATE settings SET data = ?3 WHERE path = ?1 AND name = ?2";

void Check(bool good) {
  if (good) return;
  std::cerr << "a bare query of SQLite failed\n";
  std::exit(1);
}

/// The same values as the registry's in one table, with the same guarantees.
class Settings {
 public:
  explicit Settings(const char* sql) {
    Check(sqlite3_open_v2((DatabaseFolder() / "bare.db").c_str(), &db_,
                          SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX,
                          nullptr) == SQLITE_OK);
    Execute("PRAGMA journal_mode = WAL; PRAGMA synchronous = FULL");
    Prepare(sql);
  }
  ~Settings() {
    sqlite3_finalize(statement_);
    sqlite3_close(db_);
  }
  Settings(const Settings&) = delete;
  Settings& operator=(const Settings&) = delete;

  static void Fill() {
    static const bool filled = [] {
      Settings settings("BEGIN");
      settings.Execute(
          "CREATE TABLE settings(path TEXT, name TEXT, data, PRIMARY KEY(path, name)) WITHOUT "
          "ROWID");
      settings.Execute("BEGIN");
      settings.Prepare("INSERT INTO settings VALUES(?1, ?2, ?3)");
      for (const Entry& entry : Entries()) settings.Run(entry, 2567);
      settings.Execute("COMMIT");
      return true;
    }();
    benchmark::DoNotOptimize(filled);
  }

  int Query(const Entry& entry) {
    BindNames(entry);
    Check(sqlite3_step(statement_) == SQLITE_ROW);
    const int number = sqlite3_column_int(statement_, 0);
    sqlite3_reset(statement_);
    return number;
  }

  bool Run(const Entry& entry, int number) {
    BindNames(entry);
    sqlite3_bind_int(statement_, 3, number);
    Check(sqlite3_step(statement_) == SQLITE_DONE);
    return sqlite3_reset(statement_) == SQLITE_OK;
  }

 private:
  void Execute(const char* sql) {
    Check(sqlite3_exec(db_, sql, nullptr, nullptr, nullptr) == SQLITE_OK);
  }

  void Prepare(const char* sql) {
    sqlite3_finalize(statement_);
    Check(sqlite3_prepare_v3(db_, sql, -1, SQLITE_PREPARE_PERSISTENT, &statement_, nullptr) ==
          SQLITE_OK);
  }

  void BindNames(const Entry& entry) {
    sqlite3_bind_text(statement_, 1, entry.folded_path.c_str(), -1, SQLITE_STATIC);
    sqlite3_bind_text(statement_, 2, entry.folded_name.c_str(), -1, SQLITE_STATIC);
  }

  sqlite3* db_ = nullptr;
  sqlite3_stmt* statement_ = nullptr;
};

void Query(benchmark::State& state) {
  Settings::Fill();
  Settings settings(kQuery);
  Measure(state, Entries(), [&settings](const Entry& entry) { return settings.Query(entry); });
}
BENCHMARK(Query)->Name("registry_number/sqlite");
BENCHMARK(Query)->Name("registry_text/sqlite");

void FirstQuery(benchmark::State& state) {
  Settings::Fill();
  Measure(state, Entries(), [](const Entry& entry) { return Settings(kQuery).Query(entry); });
}
BENCHMARK(FirstQuery)->Name("registry_first/sqlite");

void Update(benchmark::State& state) {
  Settings::Fill();
  Settings settings(kUpdate);
  int number = 0;
  Measure(state, std::vector(Entries().begin(), Entries().begin() + 8),
          [&](const Entry& entry) { return settings.Run(entry, ++number); });
}
BENCHMARK(Update)->Name("registry_update/sqlite")->UseRealTime();

}  // namespace
}  // namespace ZQ7Standard::Bench
