#ifndef ZQ7STANDARD_PLATFORM_REGISTRY_H_
#define ZQ7STANDARD_PLATFORM_REGISTRY_H_

#include <ZQ7Standard/Enumerations.h>
#include <ZQ7Standard/Export.h>
#include <ZQ7Standard/Types.h>

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <string_view>

namespace ZQ7Standard {

/// All the rights to a key, as an access mask.
inline constexpr std::uint32_t kKeyAllAccess = 0xF003F;
/// The option of a key that stays when the machine is turned off.
inline constexpr std::uint32_t kKeyNonVolatile = 0;

/// The types of a value that the library writes and reads. A registry may hold
/// values of any other.
inline constexpr std::uint32_t kRegistryText = 1;
inline constexpr std::uint32_t kRegistryNumber = 4;  ///< 32 bits, low byte first

/// Who may use a new key, and whether processes inherit it.
struct KeySecurity {
  std::uint32_t length = 0;          ///< bytes, as the caller states it
  const void* descriptor = nullptr;  ///< the platform's own; nullptr for the default
  bool inherit = false;
};

/// How a key is created, or opened if it exists.
struct KeyCreation {
  TextView key_class;
  std::uint32_t options = kKeyNonVolatile;
  std::uint32_t access = kKeyAllAccess;
  KeySecurity security;
};

/// What a query found: the type, and how many bytes of data it wrote.
struct QueriedValue {
  std::uint32_t type;
  std::size_t size;
};

/// An open key; its destructor closes it. It must not outlive its registry, nor be used
/// in another process.
class ZQ7STANDARD_EXPORT RegistryKey {
 public:
  virtual ~RegistryKey();

  /// Writes the data of the value `name` to the front of `buffer`. Returns nullopt, and
  /// writes nothing, if there is no such value or it is longer than `buffer`.
  virtual std::optional<QueriedValue> Query(TextView name, std::span<char> buffer) = 0;

  /// Sets the type and the data of the value `name`, whatever it was. Returns true once
  /// it would survive a loss of power; false, changing nothing, if it cannot be written.
  virtual bool Set(TextView name, std::uint32_t type, std::string_view data) = 0;
};

/// The registry behind `RegistryObject`: keys below a few roots, each with named
/// values. A path has "\" between its names. Paths and names compare without
/// regard to case. They hold characters of the code page only, and no character 0. The
/// registries of the library have no key with an empty name, a name of more than 255
/// characters or a path of more than 512 names.
///
/// `root` is any number, usually a `KetRootType`. An operation that fails returns null. A
/// registry and its keys belong to one thread at a time.
class ZQ7STANDARD_EXPORT Registry {
 public:
  virtual ~Registry();

  /// The key at `path` below `root` with the rights of the mask `access`; null if it does
  /// not exist or a right is not granted.
  virtual std::unique_ptr<RegistryKey> Open(std::int32_t root, TextView path,
                                            std::uint32_t access) = 0;

  /// The same, after creating the key and those above it if they do not exist.
  virtual std::unique_ptr<RegistryKey> Create(std::int32_t root, TextView path,
                                              const KeyCreation& creation) = 0;
};

/// The folders that hold the databases of `SystemRegistry`. An empty path means the
/// machine's own place. On Windows, whose registry has no such folders, both are ignored.
struct RegistryFolders {
  std::filesystem::path user;     ///< of HKEY_CURRENT_USER; by default ~/.local/share/zq7standard
  std::filesystem::path machine;  ///< of the other roots; by default /var/lib/zq7standard
};

/// The registry of the machine. On Linux it is two SQLite databases, whose file
/// permissions are the rights to it: whoever may not write one may not open a key of it
/// either. An update is on the disk when it returns, and processes may write at the same
/// time. Nothing is opened before the first call, or created before the first key. A
/// database is created for its user alone; one that is a symbolic link is not used, nor
/// one in the user's own place that others own or may write to. docs/files.md is for its
/// administrator.
///
/// On Windows it is the registry itself, flushed to the disk by every update, with the keys and
/// texts that a program has on a machine whose code page is Windows-874.
///
/// It may be used on both sides of a fork. In a library built without
/// ZQ7STANDARD_WITH_SQLITE for Linux no key can be opened or created.
ZQ7STANDARD_EXPORT std::shared_ptr<Registry> SystemRegistry(const RegistryFolders& folders = {});

/// A registry in memory, empty at first: for tests, and for hosts that must leave nothing
/// behind.
ZQ7STANDARD_EXPORT std::shared_ptr<Registry> MemoryRegistry();

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_PLATFORM_REGISTRY_H_
