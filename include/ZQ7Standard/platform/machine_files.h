#ifndef ZQ7STANDARD_PLATFORM_MACHINE_FILES_H_
#define ZQ7STANDARD_PLATFORM_MACHINE_FILES_H_

#include <ZQ7Standard/Services.h>

#include <filesystem>

namespace ZQ7Standard {

/// The files in which a machine describes itself. A `root` other than "/" holds a copy of
/// those of another machine, such as its /proc, /sys and /etc. Windows keeps no such files: there
/// the root is ignored.
struct MachineFiles {
  std::filesystem::path root = "/";
  DriveMap drives = {};  ///< for path texts
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_PLATFORM_MACHINE_FILES_H_
