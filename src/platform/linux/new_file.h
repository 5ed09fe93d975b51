#ifndef ZQ7STANDARD_SRC_PLATFORM_LINUX_NEW_FILE_H_
#define ZQ7STANDARD_SRC_PLATFORM_LINUX_NEW_FILE_H_

#include <string>
#include <string_view>

#include "platform/linux/descriptor.h"

namespace ZQ7Standard {

/// A file that appears whole or not at all: its bytes are on the disk before it has its name. If
/// the process is killed, nothing remains where the file system supports unnamed files; elsewhere a
/// hidden ".zq7-" file may. Failures raise a `std::system_error` with their errno.
class NewFile {
 public:
  /// Writes `bytes` to a file in the folder of the descriptor `folder` (O_PATH will do). Both must
  /// outlive the object. The file has the rights `mode`, less the process's umask.
  NewFile(int folder, std::string_view bytes, unsigned mode);
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;
  /// Discards the file if it did not take a name.
  ~NewFile();

  /// Names the file `name` in the folder; then the object is used up. Returns false and changes
  /// nothing if the name exists, even as a dangling link. Does not wait until the folder is on the
  /// disk.
  bool TakeName(const std::string& name);

 private:
  NewFile(Descriptor file, int folder, std::string_view bytes, unsigned mode);
  void WriteHidden();
  bool WriteInPlace(const std::string& name) const;

  Descriptor file_;
  int folder_;
  std::string_view bytes_;
  unsigned mode_;
  std::string hidden_name_;  // empty while the file has no name
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_LINUX_NEW_FILE_H_
