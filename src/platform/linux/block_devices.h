#ifndef ZQ7STANDARD_SRC_PLATFORM_LINUX_BLOCK_DEVICES_H_
#define ZQ7STANDARD_SRC_PLATFORM_LINUX_BLOCK_DEVICES_H_

#include <ZQ7Standard/Types.h>

#include <string>
#include <vector>

#include "platform/linux/machine_tree.h"
#include "platform/linux/mount_table.h"

namespace ZQ7Standard {

std::vector<Mount> MountsOf(const MachineTree& tree);

/// The mount that holds a native path, absolute or relative to the current folder, with its links
/// followed up to a mount that is not local, below which nothing is touched. Its `device` is empty
/// if there is none.
Mount FindMount(const MachineTree& tree, const std::string& path);

/// The number of the block device of a mount, such as "8:1"; empty if it has none.
std::string DeviceOf(const MachineTree& tree, const Mount& mount);

/// The serial number of the first disk below the device of that number.
Text DiskSerial(const MachineTree& tree, const std::string& device);

/// The serial number of the volume on the device of that number.
Text VolumeSerialOf(const MachineTree& tree, const std::string& device);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_LINUX_BLOCK_DEVICES_H_
