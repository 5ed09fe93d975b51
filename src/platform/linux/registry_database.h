#ifndef ZQ7STANDARD_SRC_PLATFORM_LINUX_REGISTRY_DATABASE_H_
#define ZQ7STANDARD_SRC_PLATFORM_LINUX_REGISTRY_DATABASE_H_

#include <ZQ7Standard/platform/registry.h>

#include <unordered_map>

#include "platform/linux/sqlite_connection.h"

namespace ZQ7Standard {

/// Where a key is: a root, and the path below it in the form of `KeyPath`.
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

/// An open database of registry keys, used by one thread at a time. What fails, or
/// is asked in a child of the process that opened it, is answered with nothing.
///
/// The name of a key or a value is kept as its creator wrote it, beside the text in
/// lower case that it is looked up by.
class RegistryDatabase {
 public:
  using WhenMissing = SqliteConnection::WhenMissing;

  /// The database in `file`; nothing when there is none (unless it may be made), it
  /// may not be written, or it is a link, damaged, not a registry or of a later version.
  /// Those are left as they are; an empty file counts as none.
  static std::shared_ptr<RegistryDatabase> Open(const std::filesystem::path& file,
                                                WhenMissing when_missing);

  bool IsUsable() const { return connection_.IsUsable(); }
  bool WasMoved() { return connection_.WasMoved(); }

  /// Whether there is a key. It may be gone by now when it was found before.
  bool HasKey(const KeyPlace& place) { return FindKey(place).has_value(); }

  /// Makes a key, and those above it, unless they are there. Whether they are now.
  bool MakeKey(const KeyPlace& place);

  std::optional<QueriedValue> Query(const KeyPlace& place, TextView name, std::span<char> buffer);
  bool Set(const KeyPlace& place, TextView name, std::uint32_t type, std::string_view data);

  /// For `Open` alone.
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
  // The numbers of the keys that were found in one state of the database: to look
  // one up takes as long as to read a value.
  std::unordered_map<KeyPlace, std::int64_t, KeyPlace::Hash> found_;
  unsigned found_in_ = 0;
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_LINUX_REGISTRY_DATABASE_H_
