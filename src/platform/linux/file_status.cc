#include <ZQ7Standard/platform/file_status.h>
#include <sys/stat.h>
#include <sys/vfs.h>

#include <cerrno>
#include <utility>

#include "platform/linux/file_errors.h"
#include "platform/linux/native_path.h"
#include "platform/linux/time_step.h"

namespace ZQ7Standard {
namespace {

class LinuxFileStatus final : public FileStatusSource {
 public:
  explicit LinuxFileStatus(DriveMap drives) : drives_(std::move(drives)) {}

  std::optional<FileStatus> StatusOf(TextView path) override {
    const std::string native = NativePath(path, drives_);
    struct stat status {};
    if (stat(native.c_str(), &status) != 0) {
      if (MeansMissing(errno) || errno == EACCES) return std::nullopt;
      throw FileError(errno, "status", path, native);
    }
    const auto modified = std::chrono::seconds(status.st_mtim.tv_sec) +
                          std::chrono::nanoseconds(status.st_mtim.tv_nsec);
    return FileStatus{S_ISDIR(status.st_mode), (status.st_mode & S_IWUSR) == 0,
                      std::chrono::sys_time<std::chrono::nanoseconds>(modified)};
  }

  std::chrono::nanoseconds TimeStep(TextView path) override {
    struct statfs system {};
    const bool known = statfs(NativePath(path, drives_).c_str(), &system) == 0;
    return TimeStepOf(known ? static_cast<std::uint32_t>(system.f_type) : 0);
  }

  void ClearReadOnly(TextView path) override {
    const std::string native = NativePath(path, drives_);
    struct stat status {};
    if (stat(native.c_str(), &status) != 0 ||
        chmod(native.c_str(), (status.st_mode & ALLPERMS) | S_IWUSR) != 0) {
      throw FileError(errno, "clear read-only", path, native);
    }
  }

 private:
  DriveMap drives_;
};

}  // namespace

std::shared_ptr<FileStatusSource> SystemFileStatus(DriveMap drives) {
  return std::make_shared<LinuxFileStatus>(std::move(drives));
}

}  // namespace ZQ7Standard
