#ifndef ZQ7STANDARD_SRC_PLATFORM_LINUX_MOUNT_TABLE_H_
#define ZQ7STANDARD_SRC_PLATFORM_LINUX_MOUNT_TABLE_H_

#include <string>
#include <string_view>
#include <vector>

namespace ZQ7Standard {

/// A mounted file system.
struct Mount {
  std::string device;  ///< its number, "8:1"; "0:..." if it is not one of a block device
  std::string top;     ///< its folder that is mounted, "/" for all of it
  std::string point;   ///< the folder where
  std::string type;    ///< "ext4"
  std::string source;  ///< "/dev/sda1"
};

/// The mounts by the text of /proc/self/mountinfo, in the order in which they were made.
std::vector<Mount> ReadMounts(std::string_view mountinfo);

/// The mount that holds the absolute path, which has no links and no "."; null if there is none.
const Mount* MountOf(const std::vector<Mount>& mounts, std::string_view path);

/// Whether what is mounted answers without a network, an automounter or another program.
bool IsLocal(const Mount& mount);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_LINUX_MOUNT_TABLE_H_
