#include "platform/linux/registry_database.h"

#include <algorithm>

#include "base/case_mapping.h"

namespace ZQ7Standard {
namespace {

// The mark of our databases, "ZQ7R", and the version of the tables in `kSchema`.
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

constexpr const char* kLookUpKey = "SELECT id FROM keys WHERE root = ?1 AND folded = ?2";

constexpr const char* kMakeKey = R"(
  INSERT INTO keys(root, folded, parent, name)
  VALUES(?1, ?2, (SELECT id FROM keys WHERE root = ?1 AND folded = ?3), ?4)
  ON CONFLICT DO NOTHING)";

constexpr const char* kQuery = "SELECT type, data FROM entries WHERE key = ?1 AND folded = ?2";

constexpr const char* kSet = R"(
  INSERT INTO entries(key, folded, name, type, data)
  SELECT id, ?3, ?4, ?5, ?6 FROM keys WHERE root = ?1 AND folded = ?2
  ON CONFLICT DO UPDATE SET type = excluded.type, data = excluded.data)";

enum class Content { kNothing, kRegistry, kOther };

/// The kind of a database; one that cannot be read counts as another kind. The caller holds a
/// transaction, since another process may create the tables between two queries.
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
  auto database = std::make_shared<RegistryDatabase>(file, when_missing);
  if (!database->IsUsable()) return nullptr;
  SqliteConnection& connection = database->connection_;
  connection.Execute("BEGIN");
  const Content content = ContentOf(connection);
  connection.Execute("COMMIT");
  if (content == Content::kOther) return nullptr;
  if (content == Content::kNothing && !(make && database->MakeSchema())) return nullptr;
  const bool ready = connection.Execute("PRAGMA synchronous = FULL; PRAGMA foreign_keys = ON") &&
                     database->PrepareStatements();
  if (!ready) return nullptr;
  // Fails while another process has the database open without a log, which is slower but no less
  // safe.
  connection.Execute("PRAGMA journal_mode = WAL");
  return database;
}

bool RegistryDatabase::MakeKey(const KeyPlace& place) {
  if (LookUpKey(place)) return true;
  if (!connection_.Execute("BEGIN IMMEDIATE")) return false;
  if (MakeKeysOnTheWay(place) && connection_.Execute("COMMIT")) return true;
  connection_.Execute("ROLLBACK");
  return false;
}

std::optional<QueriedValue> RegistryDatabase::Query(const KeyPlace& place, TextView name,
                                                    std::span<char> buffer) {
  if (!IsUsable()) return std::nullopt;
  while (const auto key = FindKey(place)) {
    const auto value = QueryIn(*key, name, buffer);
    if (!ForgetChangedKeys()) return value;
  }
  return std::nullopt;
}

bool RegistryDatabase::Set(const KeyPlace& place, TextView name, std::uint32_t type,
                           std::string_view data) {
  if (!IsUsable()) return false;
  const std::string path = Folded(place.path);
  const std::string folded = Folded(name);
  const std::string written = Utf8(name);
  Start(set_, std::int64_t{place.root}, path, folded, written, std::int64_t{type},
        SqliteBytes{data});
  return Finish(set_) && connection_.Changes() == 1;
}

/// Creates the tables, unless another process has just done so.
bool RegistryDatabase::MakeSchema() {
  if (!connection_.Execute("BEGIN IMMEDIATE")) return false;
  const Content content = ContentOf(connection_);
  const bool made = content == Content::kRegistry ||
                    (content == Content::kNothing && connection_.Execute(kSchema));
  return made && connection_.Execute("COMMIT");
}

bool RegistryDatabase::PrepareStatements() {
  look_up_key_ = connection_.Prepare(kLookUpKey);
  make_key_ = connection_.Prepare(kMakeKey);
  query_ = connection_.Prepare(kQuery);
  set_ = connection_.Prepare(kSet);
  return look_up_key_ != nullptr && make_key_ != nullptr && query_ != nullptr && set_ != nullptr;
}

std::optional<std::int64_t> RegistryDatabase::LookUpKey(const KeyPlace& place) {
  const std::string folded = Folded(place.path);
  Start(look_up_key_, std::int64_t{place.root}, folded);
  std::optional<std::int64_t> key;
  if (sqlite3_step(look_up_key_) == SQLITE_ROW) key = sqlite3_column_int64(look_up_key_, 0);
  sqlite3_reset(look_up_key_);
  return key;
}

/// The same, remembered until `ForgetChangedKeys`.
std::optional<std::int64_t> RegistryDatabase::FindKey(const KeyPlace& place) {
  const auto found = found_.find(place);
  if (found != found_.end()) return found->second;
  const auto key = LookUpKey(place);
  if (key) found_.emplace(place, *key);
  return key;
}

bool RegistryDatabase::MakeKeysOnTheWay(const KeyPlace& place) {
  const TextView path = place.path;
  std::string parent;
  for (std::size_t start = 0; start <= path.size();) {
    const std::size_t end = std::min(path.find(u'\\', start), path.size());
    const std::string folded = Folded(path.substr(0, end));
    const std::string name = Utf8(path.substr(start, end - start));
    Start(make_key_, std::int64_t{place.root}, folded, parent, name);
    if (!Finish(make_key_)) return false;
    parent = folded;
    start = end + 1;
  }
  return true;
}

std::optional<QueriedValue> RegistryDatabase::QueryIn(std::int64_t key, TextView name,
                                                      std::span<char> buffer) {
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

/// Whether anything, possibly the keys, has changed since they were found.
bool RegistryDatabase::ForgetChangedKeys() {
  const unsigned version = connection_.DataVersion();
  if (version == found_in_) return false;
  found_in_ = version;
  found_.clear();
  return true;
}

}  // namespace ZQ7Standard
