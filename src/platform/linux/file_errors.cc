#include "platform/linux/file_errors.h"

#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>

namespace ZQ7Standard {
namespace {

struct ErrorRow {
  int number;  // errno
  Error error;
};

// Any other means that the path cannot be used this way, such as ENXIO: a pipe or a socket that
// nobody has open.
constexpr std::array<ErrorRow, 13> kErrors = {{
    {ENOENT, Error::kFileNotFound},
    {ENOTDIR, Error::kPathNotFound},
    {EIO, Error::kDeviceIoError},
    {ENODEV, Error::kDeviceIoError},
    {ESTALE, Error::kDeviceIoError},
    {ENOSPC, Error::kDiskFull},
    {EDQUOT, Error::kDiskFull},
    {EFBIG, Error::kDiskFull},
    {EACCES, Error::kPermissionDenied},
    {EPERM, Error::kPermissionDenied},
    {EROFS, Error::kPermissionDenied},
    {EBUSY, Error::kPermissionDenied},
    {ETXTBSY, Error::kPermissionDenied},
}};

bool IsFolderThere(const std::string& native) {
  const std::size_t slash = native.rfind('/');
  if (slash == std::string::npos) return true;
  struct stat status {};
  return stat(native.substr(0, slash + 1).c_str(), &status) == 0;
}

}  // namespace

bool MeansMissing(int error) {
  return error == ENOENT || error == ENOTDIR || error == ELOOP || error == ENAMETOOLONG;
}

bool MeansDenied(int error) {
  return error == EACCES || error == EPERM;
}

RunTimeError FileError(int number, std::string_view step, TextView path,
                       const std::string& native) {
  const auto row = std::ranges::find(kErrors, number, &ErrorRow::number);
  Error error = row != kErrors.end() ? row->error : Error::kPathFileAccess;
  if (number == ENOENT && !IsFolderThere(native)) error = Error::kPathNotFound;
  ErrorDetails details = RunTimeError(error, step).Details();
  details.input = Text(path);
  return RunTimeError(std::move(details));
}

}  // namespace ZQ7Standard
