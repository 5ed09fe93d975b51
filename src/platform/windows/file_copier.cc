#include <ZQ7Standard/platform/file_copier.h>

#include <utility>

#include "platform/windows/file_errors.h"
#include "platform/windows/native_path.h"
#include "platform/windows/open_file.h"

namespace ZQ7Standard {
namespace {

/// Refuses a target that the system would overwrite for some users, or cut short.
void RequireReplaceable(const OpenFile& source, TextView to, const std::wstring& target) {
  const DWORD attributes = GetFileAttributesW(target.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) return;
  if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
    throw FileError(ERROR_ACCESS_DENIED, "copy", to, target);
  }
  const OpenFile file(to, target, {.access = FILE_READ_ATTRIBUTES});
  file.RequireDisk("copy");
  file.RequireWritable("copy");
  if (IsSameFile(source, file)) file.Fail(ERROR_ACCESS_DENIED, "copy");
}

class WindowsFileCopier final : public FileCopier {
 public:
  explicit WindowsFileCopier(DriveMap drives) : drives_(std::move(drives)) {}

  void Copy(TextView from, TextView to, ExistingTarget existing) override {
    const OpenFile source(from, NativePath(from, drives_), {});
    source.RequireDisk("copy");
    const std::wstring target = NativePath(to, drives_);
    const bool replaces = existing == ExistingTarget::kReplace;
    if (replaces) RequireReplaceable(source, to, target);
    if (CopyFileExW(source.Native().c_str(), target.c_str(), nullptr, nullptr, nullptr,
                    replaces ? 0 : COPY_FILE_FAIL_IF_EXISTS) == 0) {
      throw FileError(GetLastError(), "copy", to, target);
    }
  }

 private:
  DriveMap drives_;
};

}  // namespace

std::shared_ptr<FileCopier> SystemFileCopier(DriveMap drives) {
  return std::make_shared<WindowsFileCopier>(std::move(drives));
}

}  // namespace ZQ7Standard
