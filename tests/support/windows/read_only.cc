#include "tests/support/read_only.h"

#include <windows.h>

namespace ZQ7Standard {

void SetReadOnly(const std::filesystem::path& path, bool read_only) {
  constexpr DWORD kReadOnly = FILE_ATTRIBUTE_READONLY;
  const DWORD attributes = GetFileAttributesW(path.c_str());
  SetFileAttributesW(path.c_str(), read_only ? attributes | kReadOnly : attributes & ~kReadOnly);
}

bool IsReadOnly(const std::filesystem::path& path) {
  return (GetFileAttributesW(path.c_str()) & FILE_ATTRIBUTE_READONLY) != 0;
}

}  // namespace ZQ7Standard
