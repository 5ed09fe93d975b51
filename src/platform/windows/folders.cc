#include <ZQ7Standard/platform/folders.h>
#include <windows.h>

#include <memory>
#include <string>
#include <utility>

#include "platform/windows/file_errors.h"
#include "platform/windows/handle.h"
#include "platform/windows/native_path.h"
#include "platform/windows/wide_text.h"

namespace ZQ7Standard {
namespace {

struct CloseFind {
  using pointer = HANDLE;
  void operator()(HANDLE find) const { FindClose(find); }
};
using Find = std::unique_ptr<HANDLE, CloseFind>;

/// Begins to list what has the pattern; null if the system refuses.
Find FindFirst(const std::wstring& pattern, WIN32_FIND_DATAW& data) {
  const HANDLE find = FindFirstFileExW(pattern.c_str(), FindExInfoBasic, &data,
                                       FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH);
  return Find(find == INVALID_HANDLE_VALUE ? nullptr : find);
}

/// Opens a file or folder only to ask about it; null if the system refuses.
Handle Opened(const std::wstring& native) {
  constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  return FileHandle(CreateFileW(native.c_str(), FILE_READ_ATTRIBUTES, kShared, nullptr,
                                OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
}

/// The folder that `native` names; nullopt if it is not one.
std::optional<FolderIdentity> IdentityOf(const std::wstring& native) {
  const Handle folder = Opened(native);
  BY_HANDLE_FILE_INFORMATION information{};
  if (!folder || GetFileInformationByHandle(folder.get(), &information) == 0 ||
      (information.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
    return std::nullopt;
  }
  return FolderIdentity{
      information.dwVolumeSerialNumber,
      std::uint64_t{information.nFileIndexHigh} << 32U | information.nFileIndexLow};
}

std::wstring WithSlash(std::wstring native) {
  if (!native.empty() && native.back() != L'\\' && native.back() != L':') native += L'\\';
  return native;
}

/// The way to a folder without links and "..", ending in "\"; empty if it cannot be opened.
std::wstring FinalWayTo(const std::wstring& native) {
  const Handle folder = Opened(native);
  return folder ? WithSlash(FinalPathOf(folder.get(), native)) : std::wstring();
}

/// Removes the last name; returns false if there is none.
bool RemoveName(std::wstring& native) {
  native.erase(native.find_last_not_of(L'\\') + 1);
  const std::size_t slash = native.find_last_of(L"\\");
  if (slash == std::wstring::npos) return false;
  native.erase(slash + 1);
  return true;
}

/// The nearest folder on the way to `native` that exists.
std::wstring NearestTo(std::wstring native) {
  while (!IdentityOf(native)) {
    if (!RemoveName(native)) return L".";
  }
  return native;
}

class WindowsFolders final : public Folders {
 public:
  explicit WindowsFolders(DriveMap drives) : drives_(std::move(drives)) {}

  void Create(TextView path) override {
    const std::wstring native = NativePath(path, drives_);
    if (CreateDirectoryW(native.c_str(), nullptr) == 0) {
      throw FileError(GetLastError(), "create", path, native);
    }
  }

  std::vector<FolderEntry> List(TextView path) override {
    const std::wstring native = WithSlash(NativePath(path, drives_));
    WIN32_FIND_DATAW data{};
    const Find find = FindFirst(native + L'*', data);
    if (!find) throw FileError(GetLastError(), "list", path, native);
    std::vector<FolderEntry> entries;
    do {
      const std::wstring name = data.cFileName;
      if (name == L"." || name == L"..") continue;
      const bool is_folder = (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
      entries.push_back({FromWide(name), is_folder ? IdentityOf(native + name) : std::nullopt});
    } while (FindNextFileW(find.get(), &data) != 0);
    if (GetLastError() != ERROR_NO_MORE_FILES) {
      throw FileError(GetLastError(), "list", path, native);
    }
    return entries;
  }

  std::vector<FolderIdentity> Enclosing(TextView path) override {
    std::vector<FolderIdentity> enclosing;
    std::wstring way = FinalWayTo(NearestTo(NativePath(path, drives_)));
    for (auto folder = IdentityOf(way); folder; folder = IdentityOf(way)) {
      enclosing.push_back(*folder);
      if (!RemoveName(way)) break;
    }
    return enclosing;
  }

 private:
  DriveMap drives_;
};

}  // namespace

std::shared_ptr<Folders> SystemFolders(DriveMap drives) {
  return std::make_shared<WindowsFolders>(std::move(drives));
}

}  // namespace ZQ7Standard
