#ifndef ZQ7STANDARD_SRC_PLATFORM_LINUX_REGISTRY_DATABASE_H_
#define ZQ7STANDARD_SRC_PLATFORM_LINUX_REGISTRY_DATABASE_H_

#include <ZQ7Standard/platform/registry.h>

#include "platform/linux/sqlite_connection.h"

namespace ZQ7Standard {

/// An open database of registry keys, used by one thread at a time. What fails, or
/// is asked in a child of the process that opened it, is answered with nothing.
///
/// The name of a key or a value is kept as its creator wrote it, beside the text in
/// lower case that it is looked up by.
class RegistryDatabase {
 public:
  enum class WhenMissing { kFail, kMake };

  /// The database in `file`; nothing when there is none (unless it may be made), it
  /// may not be written, or it is damaged, not a registry or of a later version.
  /// Those are left as they are; an empty file counts as none.
  static std::shared_ptr<RegistryDatabase> Open(const std::filesystem::path& file,
                                                WhenMissing when_missing);

  bool IsUsable() const { return connection_.IsUsable(); }
  bool WasMoved() { return connection_.WasMoved(); }

  /// The number of the key at `path` (see `KeyPath`). It begins a read, which
  /// spares `Query` a lock of its own and lasts until `EndReading`.
  std::optional<std::int64_t> FindKey(std::int32_t root, TextView path);
  void EndReading();

  /// The same, making the keys that are not there.
  std::optional<std::int64_t> FindOrMakeKey(std::int32_t root, TextView path);

  std::optional<QueriedValue> Query(std::int64_t key, TextView name, std::span<char> buffer);
  bool Set(std::int64_t key, TextView name, std::uint32_t type, std::string_view data);

  /// For `Open` alone.
  RegistryDatabase(const std::filesystem::path& file, int flags) : connection_(file, flags) {}

 private:
  bool MakeSchema();
  bool PrepareStatements();
  bool MakeKeys(std::int32_t root, TextView path);

  SqliteConnection connection_;
  sqlite3_stmt* find_key_ = nullptr;
  sqlite3_stmt* make_key_ = nullptr;
  sqlite3_stmt* query_ = nullptr;
  sqlite3_stmt* set_ = nullptr;
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_LINUX_REGISTRY_DATABASE_H_
