#ifndef ZQ7STANDARD_SRC_PLATFORM_LINUX_NEW_FILE_H_
#define ZQ7STANDARD_SRC_PLATFORM_LINUX_NEW_FILE_H_

#include <string>
#include <string_view>

#include "platform/linux/descriptor.h"

namespace ZQ7Standard {

/// A file that is to be there whole or not at all: its bytes are on the disk before it
/// has its name. Where the file system has files without a name, a process that is killed
/// leaves nothing; elsewhere it may leave a hidden ".zq7-" file. What fails raises a
/// `std::system_error` of its errno.
class NewFile {
 public:
  /// Writes `bytes` to a file in the folder that the descriptor `folder` is of (O_PATH
  /// will do). Both must outlast the object. The file has the rights `mode`, less the
  /// process's umask.
  NewFile(int folder, std::string_view bytes, unsigned mode);
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;
  /// A file that did not take a name is gone.
  ~NewFile();

  /// Gives the file the name `name` in the folder. Returns false, and changes nothing,
  /// when something has that name, be it a link to nowhere; true is the object's last
  /// use. Does not wait until the folder is on the disk.
  bool TakeName(const std::string& name);

 private:
  NewFile(Descriptor file, int folder, std::string_view bytes, unsigned mode);
  void WriteHidden();
  bool WriteInPlace(const std::string& name) const;

  Descriptor file_;
  int folder_;
  std::string_view bytes_;
  unsigned mode_;
  std::string hidden_name_;  // empty while the file has no name at all
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_LINUX_NEW_FILE_H_
