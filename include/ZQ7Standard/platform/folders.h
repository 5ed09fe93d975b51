#ifndef ZQ7STANDARD_PLATFORM_FOLDERS_H_
#define ZQ7STANDARD_PLATFORM_FOLDERS_H_

#include <ZQ7Standard/Export.h>
#include <ZQ7Standard/Types.h>
#include <ZQ7Standard/platform/path_text.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace ZQ7Standard {

/// Distinguishes folders that exist at the same time: equal for one folder, whatever path
/// led to it.
struct FolderIdentity {
  std::uint64_t device = 0;
  std::uint64_t number = 0;  ///< within the device

  friend bool operator==(const FolderIdentity&, const FolderIdentity&) = default;
};

/// A file or folder in a folder.
struct FolderEntry {
  Text name;
  std::optional<FolderIdentity> folder = std::nullopt;  ///< nullopt for a file
};

/// The folders of a file system. Paths are path texts, which may end in "\". Failures
/// raise 53, 57, 61, 70, 75 or 76.
class ZQ7STANDARD_EXPORT Folders {
 public:
  virtual ~Folders();

  /// Creates the folder `path` in an existing one. Raises 75 if the name is taken.
  virtual void Create(TextView path) = 0;

  /// Everything in the folder `path`, hidden entries included, in the order of the
  /// file system; "." and ".." are left out.
  virtual std::vector<FolderEntry> List(TextView path) = 0;

  /// The folder `path` and those that it lies in, from the inside out, beginning with the
  /// nearest that exists. Ends early if the user may not look further. Never raises.
  virtual std::vector<FolderIdentity> Enclosing(TextView path) = 0;
};

/// The folders of the machine. A link to a folder counts as the folder. Listing raises 75
/// for a name without a path text (with "\" in it, or not UTF-8), which would be taken
/// for another one.
ZQ7STANDARD_EXPORT std::shared_ptr<Folders> SystemFolders(DriveMap drives = {});

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_PLATFORM_FOLDERS_H_
