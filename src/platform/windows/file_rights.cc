#include "platform/windows/file_rights.h"

#include <windows.h>

#include <cstddef>
#include <vector>

namespace ZQ7Standard {
namespace {

/// Who owns a file and may do what with it; empty if its file system does not know.
std::vector<std::byte> SecurityOf(const std::wstring& native, SECURITY_INFORMATION what) {
  DWORD size = 0;
  GetFileSecurityW(native.c_str(), what, nullptr, 0, &size);
  std::vector<std::byte> security(size);
  if (GetFileSecurityW(native.c_str(), what, security.data(), size, &size) == 0) return {};
  return security;
}

bool SetSecurity(const OpenFile& file, SECURITY_INFORMATION what, std::vector<std::byte> security) {
  return SetKernelObjectSecurity(file.Get(), what, security.data()) != 0;
}

LARGE_INTEGER CountOf(FILETIME time) {
  LARGE_INTEGER count{};
  count.LowPart = time.dwLowDateTime;
  count.HighPart = static_cast<LONG>(time.dwHighDateTime);
  return count;
}

}  // namespace

void TakeRights(const OpenFile& file, const std::wstring& other) {
  constexpr SECURITY_INFORMATION kRights = DACL_SECURITY_INFORMATION;
  constexpr SECURITY_INFORMATION kOwners = OWNER_SECURITY_INFORMATION | GROUP_SECURITY_INFORMATION;
  const auto rights = SecurityOf(other, kRights);
  if (!rights.empty() && !SetSecurity(file, kRights, rights)) {
    file.Fail(GetLastError(), "set rights");
  }
  const auto owners = SecurityOf(other, kOwners);
  if (!owners.empty()) SetSecurity(file, kOwners, owners);

  WIN32_FILE_ATTRIBUTE_DATA data{};
  if (GetFileAttributesExW(other.c_str(), GetFileExInfoStandard, &data) == 0) return;
  FILE_BASIC_INFO basic{};  // zero leaves a time as it is
  basic.CreationTime = CountOf(data.ftCreationTime);
  basic.FileAttributes = data.dwFileAttributes & ~DWORD{FILE_ATTRIBUTE_READONLY};
  if (basic.FileAttributes == 0) basic.FileAttributes = FILE_ATTRIBUTE_NORMAL;
  if (SetFileInformationByHandle(file.Get(), FileBasicInfo, &basic, sizeof basic) == 0) {
    file.Fail(GetLastError(), "set rights");
  }
}

}  // namespace ZQ7Standard
