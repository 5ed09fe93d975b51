#ifndef ZQ7STANDARD_SRC_IO_PATHS_FOLDER_STATUS_H_
#define ZQ7STANDARD_SRC_IO_PATHS_FOLDER_STATUS_H_

#include <ZQ7Standard/Types.h>

#include <optional>

#include "platform/service_set.h"

namespace ZQ7Standard {

/// The status of a file or folder; nullopt if it does not exist or cannot be read.
std::optional<FileStatus> StatusOf(ServiceSet& services, TextView path);

bool IsFolder(ServiceSet& services, TextView path);

/// Creates a folder in an existing one, unless it exists.
void MakeFolder(ServiceSet& services, TextView path);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_IO_PATHS_FOLDER_STATUS_H_
