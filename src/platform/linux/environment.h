#ifndef ZQ7STANDARD_SRC_PLATFORM_LINUX_ENVIRONMENT_H_
#define ZQ7STANDARD_SRC_PLATFORM_LINUX_ENVIRONMENT_H_

#include <filesystem>

namespace ZQ7Standard {

/// The folder named by an environment variable; empty if it names none, or one relative to the
/// current folder, or the process has more rights than the user who made the environment.
std::filesystem::path FolderFromEnvironment(const char* variable);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_LINUX_ENVIRONMENT_H_
