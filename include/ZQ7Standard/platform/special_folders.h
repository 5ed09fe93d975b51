#ifndef ZQ7STANDARD_PLATFORM_SPECIAL_FOLDERS_H_
#define ZQ7STANDARD_PLATFORM_SPECIAL_FOLDERS_H_

#include <ZQ7Standard/Enumerations.h>
#include <ZQ7Standard/Export.h>
#include <ZQ7Standard/Types.h>
#include <ZQ7Standard/platform/machine_files.h>

#include <memory>

namespace ZQ7Standard {

/// Where the user and the machine keep what.
class ZQ7STANDARD_EXPORT SpecialFolders {
 public:
  virtual ~SpecialFolders();

  /// The path text of a folder, which need not exist; empty if there is no such folder.
  virtual Text PathOf(VirtualFolder folder) = 0;
};

/// The folders that the environment and the user's settings name (the XDG base directories,
/// user-dirs.dirs). On Windows it is those that the shell knows for the user.
ZQ7STANDARD_EXPORT std::shared_ptr<SpecialFolders> SystemSpecialFolders(MachineFiles files = {});

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_PLATFORM_SPECIAL_FOLDERS_H_
