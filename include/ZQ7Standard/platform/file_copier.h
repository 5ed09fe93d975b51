#ifndef ZQ7STANDARD_PLATFORM_FILE_COPIER_H_
#define ZQ7STANDARD_PLATFORM_FILE_COPIER_H_

#include <ZQ7Standard/Export.h>
#include <ZQ7Standard/Types.h>
#include <ZQ7Standard/platform/path_text.h>

#include <cstdint>
#include <memory>

namespace ZQ7Standard {

/// What a copy does to an existing target.
enum class ExistingTarget : std::uint8_t {
  kRefuse,
  kReplace,
};

/// Copies files. Paths are path texts.
class ZQ7STANDARD_EXPORT FileCopier {
 public:
  virtual ~FileCopier();

  /// Makes the file `to` a copy of the file `from` with its last-modified time.
  ///
  /// Raises 53 if there is no file `from`; 70 for a target that is read-only, whoever
  /// asks, or is `from` itself; 75 for a folder or a device on either side, and for a
  /// target that is to be refused; 57, 61 or 76 as the file system does.
  virtual void Copy(TextView from, TextView to, ExistingTarget existing) = 0;
};

/// Copies the files of the machine, without moving their bytes if the file system can
/// share or copy them itself. Follows symbolic links. A new file has the rights of
/// `from`, read-only included; a replaced one keeps its own. A copy that fails leaves no
/// new file, but a file that it was to replace may be cut short.
ZQ7STANDARD_EXPORT std::shared_ptr<FileCopier> SystemFileCopier(DriveMap drives = {});

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_PLATFORM_FILE_COPIER_H_
