#ifndef ZQ7STANDARD_SRC_PLATFORM_LINUX_FILE_PLACE_H_
#define ZQ7STANDARD_SRC_PLATFORM_LINUX_FILE_PLACE_H_

#include <optional>
#include <string>

#include "platform/linux/open_file.h"

namespace ZQ7Standard {

/// A name in an open folder: whatever happens to the path that led there, and to links
/// on it, the folder stays the same one.
struct FilePlace {
  OpenFile folder;
  std::string name;
  std::optional<struct stat> status;  ///< nullopt when there is nothing of that name yet
};

/// Where `native` leads, links at its end followed, also to a file that is not there.
/// nullopt when a folder on the way is not there. As the system does where it is set up
/// to, follows no link that a stranger put into a folder like /tmp: that raises 70.
std::optional<FilePlace> FindPlace(TextView path, const std::string& native,
                                   const SystemCalls& calls = kSystemCalls);

/// Waits until the folder of a place, with the names in it, is on the disk. A folder that
/// the user may not read is left to the system.
void SyncFolder(const FilePlace& place);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_LINUX_FILE_PLACE_H_
