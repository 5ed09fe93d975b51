#include "platform/windows/new_file.h"

#include <atomic>

#include "platform/windows/open_file.h"

namespace ZQ7Standard {
namespace {

std::wstring HiddenNameBeside(const std::wstring& native) {
  static std::atomic<unsigned> count = 0;
  const std::size_t name = native.find_last_of(L"\\:") + 1;  // 0 if there is neither
  return native.substr(0, name) + L".zq7-" + std::to_wstring(GetCurrentProcessId()) + L'-' +
         std::to_wstring(++count);
}

/// Deletes a file that did not get its name.
struct Discard {
  const std::wstring& native;
  bool is_wanted = true;
  ~Discard() {
    if (is_wanted) DeleteFileW(native.c_str());
  }
};

}  // namespace

bool CreateWhole(TextView path, const std::wstring& native, std::string_view bytes) {
  OpenFile file(path, HiddenNameBeside(native),
                {.access = GENERIC_WRITE, .disposition = CREATE_ALWAYS});
  Discard discard{file.Native()};
  file.Write(bytes);
  file.Sync();
  file.Close();
  if (MoveFileExW(file.Native().c_str(), native.c_str(), MOVEFILE_WRITE_THROUGH) == 0) {
    const DWORD error = GetLastError();
    if (error == ERROR_ALREADY_EXISTS || error == ERROR_FILE_EXISTS) return false;
    file.Fail(error, "create");
  }
  discard.is_wanted = false;
  return true;
}

}  // namespace ZQ7Standard
