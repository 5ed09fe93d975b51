#ifndef ZQ7STANDARD_SRC_PLATFORM_LINUX_REGISTRY_FOLDERS_H_
#define ZQ7STANDARD_SRC_PLATFORM_LINUX_REGISTRY_FOLDERS_H_

#include <sys/types.h>

#include <filesystem>

namespace ZQ7Standard {

/// The registry folder of the user who runs the process, in the data folder of the XDG base
/// directories; empty if the environment names none, or cannot be trusted.
std::filesystem::path UserRegistryFolder();

/// The registry folder of the machine.
std::filesystem::path MachineRegistryFolder();

/// The path of `folder` without symbolic links; empty if it does not exist.
std::filesystem::path WithoutLinks(const std::filesystem::path& folder);

/// Whether `folder` belongs to the user who runs the process, and nobody else may write to it.
bool IsForUserAlone(const std::filesystem::path& folder);

/// Creates `folder` and missing folders above it, with the permissions `mode`, so that they survive
/// a power loss. Returns whether it exists now.
bool MakeFolder(const std::filesystem::path& folder, mode_t mode);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_LINUX_REGISTRY_FOLDERS_H_
