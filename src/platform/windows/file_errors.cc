#include "platform/windows/file_errors.h"

#include <algorithm>
#include <array>
#include <utility>

namespace ZQ7Standard {
namespace {

struct ErrorRow {
  DWORD number;  // GetLastError
  Error error;
};

// Any other means that the path cannot be used this way.
constexpr std::array<ErrorRow, 26> kErrors = {{
    {ERROR_FILE_NOT_FOUND, Error::kFileNotFound},
    {ERROR_PATH_NOT_FOUND, Error::kPathNotFound},
    {ERROR_DIRECTORY, Error::kPathNotFound},
    {ERROR_INVALID_DRIVE, Error::kPathNotFound},
    {ERROR_BAD_NETPATH, Error::kPathNotFound},
    {ERROR_BAD_NET_NAME, Error::kPathNotFound},
    {ERROR_NOT_READY, Error::kDeviceIoError},
    {ERROR_CRC, Error::kDeviceIoError},
    {ERROR_SEEK, Error::kDeviceIoError},
    {ERROR_SECTOR_NOT_FOUND, Error::kDeviceIoError},
    {ERROR_WRITE_FAULT, Error::kDeviceIoError},
    {ERROR_READ_FAULT, Error::kDeviceIoError},
    {ERROR_GEN_FAILURE, Error::kDeviceIoError},
    {ERROR_IO_DEVICE, Error::kDeviceIoError},
    {ERROR_FILE_CORRUPT, Error::kDeviceIoError},
    {ERROR_DISK_CORRUPT, Error::kDeviceIoError},
    {ERROR_NETNAME_DELETED, Error::kDeviceIoError},
    {ERROR_DISK_FULL, Error::kDiskFull},
    {ERROR_HANDLE_DISK_FULL, Error::kDiskFull},
    {ERROR_ACCESS_DENIED, Error::kPermissionDenied},
    {ERROR_WRITE_PROTECT, Error::kPermissionDenied},
    {ERROR_SHARING_VIOLATION, Error::kPermissionDenied},
    {ERROR_LOCK_VIOLATION, Error::kPermissionDenied},
    {ERROR_USER_MAPPED_FILE, Error::kPermissionDenied},
    {ERROR_PRIVILEGE_NOT_HELD, Error::kPermissionDenied},
    {ERROR_BUSY, Error::kPermissionDenied},
}};

bool IsFolder(const std::wstring& native) {
  const DWORD attributes = GetFileAttributesW(native.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

}  // namespace

bool MeansMissing(DWORD error) {
  constexpr std::array kMissing =
      std::to_array<DWORD>({ERROR_FILE_NOT_FOUND, ERROR_PATH_NOT_FOUND, ERROR_INVALID_NAME,
                            ERROR_BAD_PATHNAME, ERROR_INVALID_DRIVE, ERROR_BAD_NETPATH,
                            ERROR_BAD_NET_NAME, ERROR_FILENAME_EXCED_RANGE, ERROR_DIRECTORY});
  return std::ranges::find(kMissing, error) != kMissing.end();
}

RunTimeError FileError(DWORD number, std::string_view step, TextView path,
                       const std::wstring& native) {
  const auto row = std::ranges::find(kErrors, number, &ErrorRow::number);
  Error error = row != kErrors.end() ? row->error : Error::kPathFileAccess;
  if (number == ERROR_ACCESS_DENIED && IsFolder(native)) error = Error::kPathFileAccess;
  ErrorDetails details = RunTimeError(error, step).Details();
  details.input = Text(path);
  return RunTimeError(std::move(details));
}

}  // namespace ZQ7Standard
