#ifndef ZQ7STANDARD_SRC_PLATFORM_LINUX_REGISTRY_DATABASE_H_
#define ZQ7STANDARD_SRC_PLATFORM_LINUX_REGISTRY_DATABASE_H_

#include <ZQ7Standard/platform/registry.h>

#include <unordered_map>

#include "platform/linux/sqlite_connection.h"

namespace ZQ7Standard {

/// The place of a key: a root, and the path below it in the form of `KeyPath`.
struct KeyPlace {
  std::int32_t root;
  Text path;

  friend bool operator==(const KeyPlace&, const KeyPlace&) = default;

  struct Hash {
    std::size_t operator()(const KeyPlace& place) const {
      return std::hash<Text>()(place.path) + static_cast<std::size_t>(place.root);
    }
  };
};

/// An open database of registry keys, used by one thread at a time. Operations that fail, or run in
/// a child of the process that opened it, return nothing.
///
/// A key's or value's name is stored as its creator wrote it, and in lower case for lookup.
class RegistryDatabase {
 public:
  using WhenMissing = SqliteConnection::WhenMissing;

  /// The database in `file`; null if it is missing (and may not be created), read-only, a link,
  /// damaged, not a registry, or of a later version. Those are left unchanged; an empty file counts
  /// as missing.
  static std::shared_ptr<RegistryDatabase> Open(const std::filesystem::path& file,
                                                WhenMissing when_missing);

  bool IsUsable() const { return connection_.IsUsable(); }
  bool WasMoved() { return connection_.WasMoved(); }

  /// Whether a key exists. It may have disappeared since it was last found.
  bool HasKey(const KeyPlace& place) { return FindKey(place).has_value(); }

  /// Creates a key and those above it, unless they exist. Returns whether they do now.
  bool MakeKey(const KeyPlace& place);

  std::optional<QueriedValue> Query(const KeyPlace& place, TextView name, std::span<char> buffer);
  bool Set(const KeyPlace& place, TextView name, std::uint32_t type, std::string_view data);

  /// Only for `Open`.
  RegistryDatabase(const std::filesystem::path& file, WhenMissing when_missing)
      : connection_(file, when_missing) {}

 private:
  bool MakeSchema();
  bool PrepareStatements();
  std::optional<std::int64_t> LookUpKey(const KeyPlace& place);
  std::optional<std::int64_t> FindKey(const KeyPlace& place);
  bool MakeKeysOnTheWay(const KeyPlace& place);
  std::optional<QueriedValue> QueryIn(std::int64_t key, TextView name, std::span<char> buffer);
  bool ForgetChangedKeys();

  SqliteConnection connection_;
  sqlite3_stmt* look_up_key_ = nullptr;
  sqlite3_stmt* make_key_ = nullptr;
  sqlite3_stmt* query_ = nullptr;
  sqlite3_stmt* set_ = nullptr;
  // The numbers of keys found in one state of the database: looking one up takes as long as reading
  // a value.
  std::unordered_map<KeyPlace, std::int64_t, KeyPlace::Hash> found_;
  unsigned found_in_ = 0;
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_LINUX_REGISTRY_DATABASE_H_
