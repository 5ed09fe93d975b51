#ifndef ZQ7STANDARD_PLATFORM_FILE_STATUS_H_
#define ZQ7STANDARD_PLATFORM_FILE_STATUS_H_

#include <ZQ7Standard/Export.h>
#include <ZQ7Standard/Types.h>
#include <ZQ7Standard/platform/path_text.h>

#include <chrono>
#include <memory>
#include <optional>

namespace ZQ7Standard {

/// What a file or folder looks like from outside. A symbolic link counts as its target.
struct FileStatus {
  bool is_folder = false;
  bool read_only = false;  ///< its owner may not write to it, whoever asks
  std::chrono::sys_time<std::chrono::nanoseconds> last_modified;
};

/// Tells whether files and folders exist, and their kind. Paths are path texts.
class ZQ7STANDARD_EXPORT FileStatusSource {
 public:
  virtual ~FileStatusSource();

  /// Returns nullopt if `path` names nothing that can be seen. Raises 57 if the device
  /// cannot tell.
  virtual std::optional<FileStatus> StatusOf(TextView path) = 0;

  /// The resolution of the last-modified times of the file system of `path`, which rounds
  /// other times down; 1 ns if it keeps them exactly, or cannot tell.
  virtual std::chrono::nanoseconds TimeStep(TextView path) = 0;

  /// Gives the owner of `path` the right to write to it. Raises 53, 70, 75 or 76.
  virtual void ClearReadOnly(TextView path) = 0;
};

/// The status of the files of the machine. It knows the coarse times of FAT (2 s), exFAT
/// (10 ms) and SMB (100 ns).
ZQ7STANDARD_EXPORT std::shared_ptr<FileStatusSource> SystemFileStatus(DriveMap drives = {});

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_PLATFORM_FILE_STATUS_H_
