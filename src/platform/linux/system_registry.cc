#include <ZQ7Standard/platform/registry.h>

#include <utility>

#include "platform/linux/registry_database.h"
#include "platform/linux/registry_folders.h"
#include "platform/registry_path.h"

namespace ZQ7Standard {
namespace {

constexpr mode_t kUserOnly = 0700;
constexpr mode_t kEveryoneEnters = 0755;

class DatabaseKey final : public RegistryKey {
 public:
  DatabaseKey(std::shared_ptr<RegistryDatabase> database, KeyPlace place)
      : database_(std::move(database)), place_(std::move(place)) {}

  std::optional<QueriedValue> Query(TextView name, std::span<char> buffer) override {
    return database_->Query(place_, name, buffer);
  }
  bool Set(TextView name, std::uint32_t type, std::string_view data) override {
    return database_->Set(place_, name, type, data);
  }

 private:
  std::shared_ptr<RegistryDatabase> database_;
  KeyPlace place_;
};

/// The database in the host's folder, or else in `own_place`. It is opened on first use, and again
/// after a fork.
class Store {
 public:
  Store(std::filesystem::path folder, std::filesystem::path (*own_place)(), mode_t mode)
      : folder_(std::move(folder)), own_place_(own_place), mode_(mode) {}

  const std::shared_ptr<RegistryDatabase>& ForReading() {
    if (!database_ || !database_->IsUsable()) Open(RegistryDatabase::WhenMissing::kFail);
    return database_;
  }

  /// The same, created if it does not exist or no longer exists: an update of a file that was
  /// removed or replaced while open would be lost.
  const std::shared_ptr<RegistryDatabase>& ForWriting() {
    const bool open = database_ && database_->IsUsable() && !database_->WasMoved();
    if (!open) Open(RegistryDatabase::WhenMissing::kMake);
    return database_;
  }

 private:
  void Open(RegistryDatabase::WhenMissing when_missing) {
    database_ = nullptr;
    const auto named = folder_.empty() ? own_place_() : folder_;
    if (named.empty()) return;
    if (when_missing == RegistryDatabase::WhenMissing::kMake && !MakeFolder(named, mode_)) return;
    const auto folder = WithoutLinks(named);
    if (folder.empty() || !IsTrusted(folder)) return;
    database_ = RegistryDatabase::Open(folder / "registry.db", when_missing);
  }

  /// A folder named by the environment must belong to the user. Hosts answer for their own, and the
  /// machine's may belong to a group.
  bool IsTrusted(const std::filesystem::path& folder) const {
    return !folder_.empty() || mode_ != kUserOnly || IsForUserAlone(folder);
  }

  std::filesystem::path folder_;
  std::filesystem::path (*own_place_)();
  mode_t mode_;
  std::shared_ptr<RegistryDatabase> database_;
};

/// The databases of the user and of the machine. A database that is not writable is not used, so
/// every key in it grants all rights.
class DatabaseRegistry final : public Registry {
 public:
  explicit DatabaseRegistry(const RegistryFolders& folders)
      : user_(folders.user, UserRegistryFolder, kUserOnly),
        machine_(folders.machine, MachineRegistryFolder, kEveryoneEnters) {}

  std::unique_ptr<RegistryKey> Open(std::int32_t root, TextView path,
                                    std::uint32_t /*access*/) override {
    auto place = PlaceOf(root, path);
    if (!place) return nullptr;
    const auto& database = StoreOf(root).ForReading();
    if (!database || !database->HasKey(*place)) return nullptr;
    return std::make_unique<DatabaseKey>(database, std::move(*place));
  }

  std::unique_ptr<RegistryKey> Create(std::int32_t root, TextView path,
                                      const KeyCreation& /*creation*/) override {
    auto place = PlaceOf(root, path);
    if (!place) return nullptr;
    const auto& database = StoreOf(root).ForWriting();
    if (!database || !database->MakeKey(*place)) return nullptr;
    return std::make_unique<DatabaseKey>(database, std::move(*place));
  }

 private:
  static std::optional<KeyPlace> PlaceOf(std::int32_t root, TextView path) {
    const auto key_path = KeyPath(path);
    if (!KeepsKeys(root) || !key_path) return std::nullopt;
    return KeyPlace{root, Text(*key_path)};
  }

  Store& StoreOf(std::int32_t root) { return root == HKEY_CURRENT_USER ? user_ : machine_; }

  Store user_;
  Store machine_;
};

}  // namespace

std::shared_ptr<Registry> SystemRegistry(const RegistryFolders& folders) {
  return std::make_shared<DatabaseRegistry>(folders);
}

}  // namespace ZQ7Standard
