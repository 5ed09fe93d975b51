#include <ZQ7Standard/platform/file_versions.h>
#include <windows.h>

#include <string>
#include <utility>

#include "formats/file_version.h"
#include "platform/windows/file_errors.h"
#include "platform/windows/native_path.h"
#include "platform/windows/open_file.h"

namespace ZQ7Standard {
namespace {

/// Fewer bytes than asked for if the file ends before.
std::string ReadPart(const OpenFile& file, std::uint64_t offset, std::size_t size) {
  LARGE_INTEGER place{};
  place.QuadPart = static_cast<LONGLONG>(offset);
  if (SetFilePointerEx(file.Get(), place, nullptr, FILE_BEGIN) == 0) {
    file.Fail(GetLastError(), "read");
  }
  std::string bytes(size, '\0');
  bytes.resize(file.Read(bytes));  // a file on a disk gives all that it has
  return bytes;
}

class WindowsFileVersions final : public FileVersions {
 public:
  explicit WindowsFileVersions(DriveMap drives) : drives_(std::move(drives)) {}

  Text VersionOf(TextView path) override {
    const std::wstring native = NativePath(path, drives_);
    const auto file = OpenFile::IfThere(path, native, {});
    if (!file) {
      const bool is_folder = GetFileAttributesW(native.c_str()) != INVALID_FILE_ATTRIBUTES;
      throw FileError(is_folder ? ERROR_ACCESS_DENIED : ERROR_FILE_NOT_FOUND, "open", path, native);
    }
    file->RequireDisk("read");
    const auto version = ReadFileVersion(
        [&file](std::uint64_t offset, std::size_t size) { return ReadPart(*file, offset, size); });
    return version ? VersionText(*version) : Text();
  }

 private:
  DriveMap drives_;
};

}  // namespace

std::shared_ptr<FileVersions> SystemFileVersions(MachineFiles files) {
  return std::make_shared<WindowsFileVersions>(std::move(files.drives));
}

}  // namespace ZQ7Standard
