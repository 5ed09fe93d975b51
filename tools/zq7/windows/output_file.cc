#include "fill/output_file.h"

#include <fcntl.h>
#include <io.h>
#include <share.h>
#include <sys/stat.h>
#include <windows.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <mutex>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "file_name.h"

namespace ZQ7Tool {
namespace {

/// The temporary files that are removed when the user or the system ends the program.
std::mutex temporary_files_lock;
std::vector<std::wstring> temporary_files;

BOOL WINAPI RemoveAndEnd(DWORD /*event*/) {
  const std::scoped_lock lock(temporary_files_lock);
  for (const std::wstring& name : temporary_files) DeleteFileW(name.c_str());
  return FALSE;  // the system's handler ends the program
}

void Remember(const std::wstring& name) {
  static const BOOL is_handled = SetConsoleCtrlHandler(RemoveAndEnd, TRUE);
  static_cast<void>(is_handled);
  const std::scoped_lock lock(temporary_files_lock);
  temporary_files.push_back(name);
}

void Forget(const std::wstring& name) {
  const std::scoped_lock lock(temporary_files_lock);
  std::erase(temporary_files, name);
}

/// Where the last link leads.
std::filesystem::path Followed(const std::filesystem::path& path) {
  std::error_code none;
  auto followed = std::filesystem::canonical(path, none);
  return none ? path : followed;
}

/// Opens a file for bytes. Others may delete it, as the handler does.
int Open(const std::filesystem::path& path, DWORD disposition) {
  constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_DELETE;
  const HANDLE handle = CreateFileW(path.c_str(), GENERIC_WRITE, kShared, nullptr, disposition,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
  if (handle == INVALID_HANDLE_VALUE) return -1;
  return _open_osfhandle(reinterpret_cast<std::intptr_t>(handle), _O_BINARY);
}

/// Tells files apart; false for what is not a file on a disk.
bool IdentityOf(HANDLE file, BY_HANDLE_FILE_INFORMATION& identity) {
  return GetFileType(file) == FILE_TYPE_DISK && GetFileInformationByHandle(file, &identity) != 0;
}

bool IdentityOf(const std::string& name, DWORD standard, BY_HANDLE_FILE_INFORMATION& identity) {
  if (name == "-") return IdentityOf(GetStdHandle(standard), identity);
  constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  const HANDLE file = CreateFileW(FileNamed(name).c_str(), FILE_READ_ATTRIBUTES, kShared, nullptr,
                                  OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  const bool is_known = file != INVALID_HANDLE_VALUE && IdentityOf(file, identity);
  if (file != INVALID_HANDLE_VALUE) CloseHandle(file);
  return is_known;
}

}  // namespace

OutputFile::OutputFile(const std::filesystem::path& path) : OutputFile() {
  path_ = Followed(path);
  const DWORD attributes = GetFileAttributesW(path_.c_str());
  const bool exists = attributes != INVALID_FILE_ATTRIBUTES;
  constexpr DWORD kRefused = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY;
  if (exists && (attributes & kRefused) != 0) {
    SetLastError(ERROR_ACCESS_DENIED);
    Fail();
  }
  if (exists) {
    file_ = Open(path_, OPEN_EXISTING);
    if (file_ < 0) Fail();
    const auto handle = reinterpret_cast<HANDLE>(_get_osfhandle(file_));
    if (GetFileType(handle) != FILE_TYPE_DISK) return;
    _close(std::exchange(file_, -1));
  }
  const std::filesystem::path folder = path_.has_parent_path() ? path_.parent_path() : L".";
  Create(folder /
         (L"." + path_.filename().native() + L'.' + std::to_wstring(GetCurrentProcessId())));
}

void OutputFile::Create(const std::filesystem::path& name) {
  file_ = Open(name, CREATE_ALWAYS);
  if (file_ < 0) Fail();
  temporary_ = name;
  Remember(temporary_.native());
}

OutputFile::~OutputFile() {
  if (file_ >= 0) _close(file_);
  if (temporary_.empty()) return;
  DeleteFileW(temporary_.c_str());
  Forget(temporary_.native());
}

void OutputFile::Write(std::string_view bytes) {
  constexpr std::size_t kMostAtOnce = std::size_t{1} << 26;
  const auto handle = reinterpret_cast<HANDLE>(_get_osfhandle(file_));
  while (!bytes.empty()) {
    DWORD written = 0;
    const auto size = static_cast<DWORD>(std::min(bytes.size(), kMostAtOnce));
    if (WriteFile(handle, bytes.data(), size, &written, nullptr) == 0) Fail();
    bytes.remove_prefix(written);
  }
}

void OutputFile::Commit() {
  if (temporary_.empty()) return;
  const auto handle = reinterpret_cast<HANDLE>(_get_osfhandle(file_));
  if (FlushFileBuffers(handle) == 0) Fail();
  _close(std::exchange(file_, -1));
  // A file that is replaced passes on its rights.
  const bool is_replaced =
      ReplaceFileW(path_.c_str(), temporary_.c_str(), nullptr, 0, nullptr, nullptr) != 0;
  constexpr DWORD kFlags = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
  if (!is_replaced && MoveFileExW(temporary_.c_str(), path_.c_str(), kFlags) == 0) Fail();
  Forget(temporary_.native());
  temporary_.clear();
}

void OutputFile::Fail() const {
  const auto error = static_cast<int>(GetLastError());
  throw std::system_error(error, std::system_category(), "cannot write " + NameOf(path_));
}

bool IsSameFile(const std::string& input, const std::string& output) {
  BY_HANDLE_FILE_INFORMATION in{};
  BY_HANDLE_FILE_INFORMATION out{};
  return IdentityOf(input, STD_INPUT_HANDLE, in) && IdentityOf(output, STD_OUTPUT_HANDLE, out) &&
         in.dwVolumeSerialNumber == out.dwVolumeSerialNumber &&
         in.nFileIndexHigh == out.nFileIndexHigh && in.nFileIndexLow == out.nFileIndexLow;
}

}  // namespace ZQ7Tool
