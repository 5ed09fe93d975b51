#include "io/paths/folder_status.h"

#include "io/failures.h"

namespace ZQ7Standard {

std::optional<FileStatus> StatusOf(ServiceSet& services, TextView path) {
  std::optional<FileStatus> status;
  Try([&] { status = services.FileStatus().StatusOf(path); });
  return status;
}

bool IsFolder(ServiceSet& services, TextView path) {
  const auto status = StatusOf(services, path);
  return status && status->is_folder;
}

void MakeFolder(ServiceSet& services, TextView path) {
  if (IsFolder(services, path)) return;
  try {
    services.Folders().Create(path);
  } catch (const RunTimeError&) {
    // Another process may have created it in between.
    if (!IsFolder(services, path)) throw;
  }
}

}  // namespace ZQ7Standard
