#ifndef ZQ7STANDARD_SRC_PLATFORM_LINUX_FILE_RIGHTS_H_
#define ZQ7STANDARD_SRC_PLATFORM_LINUX_FILE_RIGHTS_H_

#include <sys/stat.h>

#include <optional>
#include <string>
#include <string_view>

#include "platform/linux/open_file.h"

namespace ZQ7Standard {

/// Who may do what with a file.
struct FileRights {
  struct stat status;
  /// The access control list as the system stores it, empty without one; nullopt where
  /// it cannot be known.
  std::optional<std::string> list;
};

/// The access control list of a file.
std::optional<std::string> AccessListOf(const OpenFile& file);

/// The permission bits that a file is left with without its access control list `list`:
/// nobody has a right by them that the list did not give.
mode_t ModeWithoutList(mode_t mode, std::string_view list);

/// Gives a new file of the status `own` the owner, group and rights of another file, as far
/// as the user may do that, and its owner the right to write. Nobody but the owner gets
/// more rights than the other file gave.
void TakeRights(const OpenFile& file, const struct stat& own, const FileRights& other);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_LINUX_FILE_RIGHTS_H_
