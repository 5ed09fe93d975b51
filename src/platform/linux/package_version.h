#ifndef ZQ7STANDARD_SRC_PLATFORM_LINUX_PACKAGE_VERSION_H_
#define ZQ7STANDARD_SRC_PLATFORM_LINUX_PACKAGE_VERSION_H_

#include <string>

namespace ZQ7Standard {

/// The version of the installed Debian package that brought the file `path`, an absolute native
/// one; empty if none did, or the system has no such packages. Raises 70 if their database does not
/// answer one of two questions within 2 seconds.
std::string PackageVersion(const std::string& path);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_LINUX_PACKAGE_VERSION_H_
