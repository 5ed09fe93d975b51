#ifndef ZQ7STANDARD_SRC_IO_PATHS_FOLDER_STATUS_H_
#define ZQ7STANDARD_SRC_IO_PATHS_FOLDER_STATUS_H_

#include <ZQ7Standard/Types.h>

#include <optional>

#include "platform/service_set.h"

namespace ZQ7Standard {

/// The status of a file or folder; nullopt if there is none, or it cannot be told.
std::optional<FileStatus> StatusOf(ServiceSet& services, TextView path);

bool IsFolder(ServiceSet& services, TextView path);

/// Makes a folder in one that is there, unless it is there itself.
void MakeFolder(ServiceSet& services, TextView path);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_IO_PATHS_FOLDER_STATUS_H_
