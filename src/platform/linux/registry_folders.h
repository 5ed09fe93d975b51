#ifndef ZQ7STANDARD_SRC_PLATFORM_LINUX_REGISTRY_FOLDERS_H_
#define ZQ7STANDARD_SRC_PLATFORM_LINUX_REGISTRY_FOLDERS_H_

#include <sys/types.h>

#include <filesystem>

namespace ZQ7Standard {

/// The folder of the registry of the user who runs the process, below the folder for
/// data of the XDG base directories; empty when the environment names none, or is not to
/// be trusted.
std::filesystem::path UserRegistryFolder();

/// The folder of the registry of the machine.
std::filesystem::path MachineRegistryFolder();

/// The path of `folder` without symbolic links; empty when it is not there.
std::filesystem::path WithoutLinks(const std::filesystem::path& folder);

/// Whether `folder` belongs to the user who runs the process, and nobody else may write
/// to it.
bool IsForUserAlone(const std::filesystem::path& folder);

/// Makes `folder` and those above it that are not there, to stay after a loss of
/// power, with the permissions `mode`. Whether it is there now.
bool MakeFolder(const std::filesystem::path& folder, mode_t mode);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_LINUX_REGISTRY_FOLDERS_H_
