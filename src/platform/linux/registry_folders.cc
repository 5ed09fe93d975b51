#include "platform/linux/registry_folders.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

#include "platform/linux/environment.h"

namespace ZQ7Standard {
namespace {

/// Writes the names in `folder` to the disk.
void SyncFolder(const std::filesystem::path& folder) {
  const int opened = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (opened < 0) return;
  fsync(opened);
  close(opened);
}

}  // namespace

std::filesystem::path UserRegistryFolder() {
  const auto data = FolderFromEnvironment("XDG_DATA_HOME");
  if (!data.empty()) return data / "zq7standard";
  const auto home = FolderFromEnvironment("HOME");
  return home.empty() ? home : home / ".local/share/zq7standard";
}

std::filesystem::path MachineRegistryFolder() {
  return "/var/lib/zq7standard";
}

std::filesystem::path WithoutLinks(const std::filesystem::path& folder) {
  std::error_code error;
  return std::filesystem::canonical(folder, error);
}

bool IsForUserAlone(const std::filesystem::path& folder) {
  struct stat state {};
  return stat(folder.c_str(), &state) == 0 && state.st_uid == geteuid() &&
         (state.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

bool MakeFolder(const std::filesystem::path& folder, mode_t mode) {
  struct stat state {};
  if (stat(folder.c_str(), &state) == 0) return S_ISDIR(state.st_mode);
  const auto parent = folder.parent_path();
  if (parent == folder || (!parent.empty() && !MakeFolder(parent, mode))) return false;
  if (mkdir(folder.c_str(), mode) != 0) return errno == EEXIST;
  SyncFolder(parent.empty() ? "." : parent);
  return true;
}

}  // namespace ZQ7Standard
