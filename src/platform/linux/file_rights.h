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
  /// The access control list as stored by the system, empty if there is none; nullopt if it is
  /// unknown.
  std::optional<std::string> list;
};

/// The access control list of a file.
std::optional<std::string> AccessListOf(const OpenFile& file);

/// The permission bits for a file that loses its access control list `list`: they grant nobody a
/// right that the list did not.
mode_t ModeWithoutList(mode_t mode, std::string_view list);

/// Gives a new file of the status `own` the owner, group and rights of another file, as far as the
/// user may, and its owner the right to write. Nobody but the owner gets more rights than the other
/// file granted.
void TakeRights(const OpenFile& file, const struct stat& own, const FileRights& other);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_LINUX_FILE_RIGHTS_H_
