#include <ZQ7Standard/platform/file_versions.h>
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <string>
#include <system_error>
#include <utility>

#include "formats/file_version.h"
#include "platform/linux/file_errors.h"
#include "platform/linux/machine_tree.h"
#include "platform/linux/native_path.h"
#include "platform/linux/open_file.h"
#include "platform/linux/package_version.h"

namespace ZQ7Standard {
namespace {

// Opens pipes and devices without waiting, only to reject them.
constexpr int kForReading = O_RDONLY | O_NONBLOCK;

/// Fewer bytes than asked for if the file ends before.
std::string ReadPart(const OpenFile& file, std::uint64_t offset, std::size_t size) {
  std::string bytes(size, '\0');
  std::size_t read = 0;
  while (read < size) {
    const auto got = Uninterrupted([&] {
      return pread(file.Descriptor(), bytes.data() + read, size - read,
                   static_cast<off_t>(offset + read));
    });
    if (got < 0) file.Fail(errno, "read");
    if (got == 0) break;
    read += static_cast<std::size_t>(got);
  }
  bytes.resize(read);
  return bytes;
}

class LinuxFileVersions final : public FileVersions {
 public:
  explicit LinuxFileVersions(MachineFiles files)
      : tree_(std::move(files.root)), drives_(std::move(files.drives)) {}

  Text VersionOf(TextView path) override {
    std::error_code error;
    const std::string native = std::filesystem::absolute(NativePath(path, drives_), error);
    const auto file = OpenFile::IfThere(path, error ? "" : tree_.Native(native), kForReading);
    if (!file) throw FileError(ENOENT, "open", path, "/");
    if (!S_ISREG(file->Status().st_mode)) file->Fail(EINVAL, "read");
    const auto version = ReadFileVersion(
        [&file](std::uint64_t offset, std::size_t size) { return ReadPart(*file, offset, size); });
    return version ? VersionText(*version) : CleanText(PackageVersion(native));
  }

 private:
  MachineTree tree_;
  DriveMap drives_;
};

}  // namespace

std::shared_ptr<FileVersions> SystemFileVersions(MachineFiles files) {
  return std::make_shared<LinuxFileVersions>(std::move(files));
}

}  // namespace ZQ7Standard
