#ifndef ZQ7STANDARD_PLATFORM_FILE_VERSIONS_H_
#define ZQ7STANDARD_PLATFORM_FILE_VERSIONS_H_

#include <ZQ7Standard/Export.h>
#include <ZQ7Standard/Types.h>
#include <ZQ7Standard/platform/machine_files.h>

#include <memory>

namespace ZQ7Standard {

/// Tells the versions of programs and libraries.
class ZQ7STANDARD_EXPORT FileVersions {
 public:
  virtual ~FileVersions();

  /// The version of a file, a path text; empty if it has none. Raises 53 if there is no
  /// such file, 57, 70 or 75 if it cannot be read.
  virtual Text VersionOf(TextView path) = 0;
};

/// The version in a file of Windows, else that of the Debian package that it belongs to.
/// Raises 70 if the package database does not answer one of two questions within 2 seconds.
/// On Windows only files have versions.
ZQ7STANDARD_EXPORT std::shared_ptr<FileVersions> SystemFileVersions(MachineFiles files = {});

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_PLATFORM_FILE_VERSIONS_H_
