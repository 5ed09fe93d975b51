#include "platform/linux/registry_database.h"

#include <algorithm>

#include "text/case_mapping.h"

namespace ZQ7Standard {
namespace {

// The mark of our databases, "ZQ7R", and the version of their tables, as `kSchema`
// sets them.
constexpr std::int64_t kApplication = 0x5A513752;
constexpr std::int64_t kVersion = 1;

// The roots have keys of their own, so that values can be set in them.
constexpr const char* kSchema = R"(
  CREATE TABLE keys(
    id INTEGER PRIMARY KEY,
    root INTEGER NOT NULL,
    folded TEXT NOT NULL,  -- the path below the root, in lower case
    parent INTEGER REFERENCES keys ON DELETE CASCADE,
    name TEXT NOT NULL,  -- the last name of the path
    UNIQUE(root, folded));
  CREATE INDEX keys_by_parent ON keys(parent);
  CREATE TABLE entries(
    key INTEGER NOT NULL REFERENCES keys ON DELETE CASCADE,
    folded TEXT NOT NULL,  -- the name, in lower case
    name TEXT NOT NULL,
    type INTEGER NOT NULL,
    data BLOB NOT NULL,
    PRIMARY KEY(key, folded)) WITHOUT ROWID;
  INSERT INTO keys(root, folded, name) VALUES
    (-2147483648, '', ''), (-2147483647, '', ''), (-2147483646, '', ''), (-2147483645, '', '');
  PRAGMA application_id = 0x5A513752;
  PRAGMA user_version = 1;
)";

constexpr const char* kFindKey = "SELECT id FROM keys WHERE root = ?1 AND folded = ?2";

constexpr const char* kMakeKey = R"(
  INSERT INTO keys(root, folded, parent, name)
  VALUES(?1, ?2, (SELECT id FROM keys WHERE root = ?1 AND folded = ?3), ?4)
  ON CONFLICT DO NOTHING)";

constexpr const char* kQuery = "SELECT type, data FROM entries WHERE key = ?1 AND folded = ?2";

constexpr const char* kSet = R"(
  INSERT INTO entries(key, folded, name, type, data) VALUES(?1, ?2, ?3, ?4, ?5)
  ON CONFLICT DO UPDATE SET type = excluded.type, data = excluded.data)";

enum class Content { kNothing, kRegistry, kOther };

/// What a database holds; what cannot be read counts as something other.
Content ContentOf(SqliteConnection& connection) {
  const std::int64_t application = connection.Number("PRAGMA application_id", -1);
  const std::int64_t version = connection.Number("PRAGMA user_version", -1);
  if (application == kApplication && version == kVersion) return Content::kRegistry;
  const bool blank = application == 0 && version == 0 &&
                     connection.Number("SELECT count(*) FROM sqlite_master", -1) == 0;
  return blank ? Content::kNothing : Content::kOther;
}

std::string Folded(TextView text) {
  return Utf8(ToLower(text));
}

}  // namespace

std::shared_ptr<RegistryDatabase> RegistryDatabase::Open(const std::filesystem::path& file,
                                                         WhenMissing when_missing) {
  const bool make = when_missing == WhenMissing::kMake;
  const int flags = SQLITE_OPEN_READWRITE | (make ? SQLITE_OPEN_CREATE : 0);
  auto database = std::make_shared<RegistryDatabase>(file, flags);
  if (!database->IsUsable()) return nullptr;
  SqliteConnection& connection = database->connection_;
  const Content content = ContentOf(connection);
  if (content == Content::kOther) return nullptr;
  if (content == Content::kNothing && !(make && database->MakeSchema())) return nullptr;
  const bool ready = connection.Execute("PRAGMA synchronous = FULL; PRAGMA foreign_keys = ON") &&
                     database->PrepareStatements();
  if (!ready) return nullptr;
  // Stays undone while another process has the database open without a log, which
  // is slower and no less safe.
  connection.Execute("PRAGMA journal_mode = WAL");
  return database;
}

std::optional<std::int64_t> RegistryDatabase::FindKey(std::int32_t root, TextView path) {
  const std::string folded = Folded(path);
  Start(find_key_, std::int64_t{root}, folded);
  if (sqlite3_step(find_key_) == SQLITE_ROW) return sqlite3_column_int64(find_key_, 0);
  sqlite3_reset(find_key_);
  return std::nullopt;
}

void RegistryDatabase::EndReading() {
  if (IsUsable()) sqlite3_reset(find_key_);
}

std::optional<std::int64_t> RegistryDatabase::FindOrMakeKey(std::int32_t root, TextView path) {
  const auto key = FindKey(root, path);
  if (key) return key;
  if (!connection_.Execute("BEGIN IMMEDIATE")) return std::nullopt;
  if (MakeKeys(root, path) && connection_.Execute("COMMIT")) return FindKey(root, path);
  connection_.Execute("ROLLBACK");
  return std::nullopt;
}

std::optional<QueriedValue> RegistryDatabase::Query(std::int64_t key, TextView name,
                                                    std::span<char> buffer) {
  if (!IsUsable()) return std::nullopt;
  const std::string folded = Folded(name);
  Start(query_, key, folded);
  std::optional<QueriedValue> value;
  if (sqlite3_step(query_) == SQLITE_ROW) {
    const auto* const data = static_cast<const char*>(sqlite3_column_blob(query_, 1));
    const auto size = static_cast<std::size_t>(sqlite3_column_bytes(query_, 1));
    if (size <= buffer.size()) {
      std::copy_n(data, size, buffer.begin());
      value = {static_cast<std::uint32_t>(sqlite3_column_int64(query_, 0)), size};
    }
  }
  sqlite3_reset(query_);
  return value;
}

bool RegistryDatabase::Set(std::int64_t key, TextView name, std::uint32_t type,
                           std::string_view data) {
  if (!IsUsable()) return false;
  EndReading();  // SQLite refuses to write on top of a read that another process overtook
  const std::string folded = Folded(name);
  const std::string written = Utf8(name);
  Start(set_, key, folded, written, std::int64_t{type}, SqliteBytes{data});
  return Finish(set_);
}

/// Makes the tables, unless another process has just done so.
bool RegistryDatabase::MakeSchema() {
  if (!connection_.Execute("BEGIN IMMEDIATE")) return false;
  const Content content = ContentOf(connection_);
  const bool made = content == Content::kRegistry ||
                    (content == Content::kNothing && connection_.Execute(kSchema));
  return made && connection_.Execute("COMMIT");
}

bool RegistryDatabase::PrepareStatements() {
  find_key_ = connection_.Prepare(kFindKey);
  make_key_ = connection_.Prepare(kMakeKey);
  query_ = connection_.Prepare(kQuery);
  set_ = connection_.Prepare(kSet);
  return find_key_ != nullptr && make_key_ != nullptr && query_ != nullptr && set_ != nullptr;
}

/// Makes each key on the way to `path` that is not there.
bool RegistryDatabase::MakeKeys(std::int32_t root, TextView path) {
  std::string parent;
  for (std::size_t start = 0; start <= path.size();) {
    const std::size_t end = std::min(path.find(u'\\', start), path.size());
    const std::string folded = Folded(path.substr(0, end));
    const std::string name = Utf8(path.substr(start, end - start));
    Start(make_key_, std::int64_t{root}, folded, parent, name);
    if (!Finish(make_key_)) return false;
    parent = folded;
    start = end + 1;
  }
  return true;
}

}  // namespace ZQ7Standard
