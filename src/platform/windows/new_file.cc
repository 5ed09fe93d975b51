#include "platform/windows/new_file.h"

#include <atomic>
#include <utility>

namespace ZQ7Standard {
namespace {

std::wstring HiddenNameBeside(const std::wstring& native) {
  static std::atomic<unsigned> count = 0;
  const std::size_t name = native.find_last_of(L"\\:") + 1;  // 0 if there is neither
  return native.substr(0, name) + L".zq7-" + std::to_wstring(GetCurrentProcessId()) + L'-' +
         std::to_wstring(++count);
}

/// A read-only file may not be replaced.
void DeleteWhatIsThere(const std::wstring& native) {
  if (DeleteFileW(native.c_str()) != 0 || GetLastError() != ERROR_ACCESS_DENIED) return;
  SetFileAttributesW(native.c_str(), FILE_ATTRIBUTE_NORMAL);
  DeleteFileW(native.c_str());
}

OpenFile Written(TextView path, std::wstring native, std::string_view bytes) {
  DeleteWhatIsThere(native);
  OpenFile file(
      path, std::move(native),
      {.access = GENERIC_WRITE, .disposition = CREATE_NEW, .attributes = FILE_ATTRIBUTE_NORMAL});
  try {
    file.Write(bytes);
    file.Sync();
  } catch (...) {
    file.Close();
    DeleteFileW(file.Native().c_str());
    throw;
  }
  file.Close();
  return file;
}

}  // namespace

TemporaryFile::TemporaryFile(TextView path, std::wstring native, std::string_view bytes)
    : file_(Written(path, std::move(native), bytes)) {}

TemporaryFile::~TemporaryFile() {
  if (!is_kept_) DeleteFileW(Native().c_str());
}

bool CreateWhole(TextView path, const std::wstring& native, std::string_view bytes) {
  TemporaryFile file(path, HiddenNameBeside(native), bytes);
  if (MoveFileExW(file.Native().c_str(), native.c_str(), MOVEFILE_WRITE_THROUGH) == 0) {
    const DWORD error = GetLastError();
    if (error == ERROR_ALREADY_EXISTS || error == ERROR_FILE_EXISTS) return false;
    file.Fail(error, "create");
  }
  file.Keep();
  return true;
}

}  // namespace ZQ7Standard
