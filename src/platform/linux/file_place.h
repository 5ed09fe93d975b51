#ifndef ZQ7STANDARD_SRC_PLATFORM_LINUX_FILE_PLACE_H_
#define ZQ7STANDARD_SRC_PLATFORM_LINUX_FILE_PLACE_H_

#include <optional>
#include <string>

#include "platform/linux/open_file.h"

namespace ZQ7Standard {

/// A name in an open folder: whatever happens to the path that led there, and to links on it, the
/// folder stays the same.
struct FilePlace {
  OpenFile folder;
  std::string name;
  std::optional<struct stat> status;  ///< nullopt if the name does not exist yet
};

/// Where `native` leads, following links, even if that file does not exist. Returns nullopt if a
/// folder on the way does not exist. As systems can be set up to do, follows no link that a
/// stranger put into a folder like /tmp: that raises 70.
std::optional<FilePlace> FindPlace(TextView path, const std::string& native,
                                   const SystemCalls& calls = kSystemCalls);

/// Waits until the folder of a place, with its names, is on the disk. A folder that the user may
/// not read is left to the system.
void SyncFolder(const FilePlace& place);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_LINUX_FILE_PLACE_H_
