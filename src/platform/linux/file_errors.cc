#include "platform/linux/file_errors.h"

#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cerrno>

#include "base/unicode.h"

namespace ZQ7Standard {
namespace {

using Factory = RunTimeError (*)(std::string_view operation, std::string_view input);

struct ErrorRow {
  int error;
  Factory factory;
};

// Any other is a path that cannot be used this way, such as ENXIO: a pipe or a socket that
// nobody has open.
constexpr std::array<ErrorRow, 13> kErrors = {{
    {ENOENT, RunTimeError::FileNotFound},
    {ENOTDIR, RunTimeError::PathNotFound},
    {EIO, RunTimeError::DeviceIoError},
    {ENODEV, RunTimeError::DeviceIoError},
    {ESTALE, RunTimeError::DeviceIoError},
    {ENOSPC, RunTimeError::DiskFull},
    {EDQUOT, RunTimeError::DiskFull},
    {EFBIG, RunTimeError::DiskFull},
    {EACCES, RunTimeError::PermissionDenied},
    {EPERM, RunTimeError::PermissionDenied},
    {EROFS, RunTimeError::PermissionDenied},
    {EBUSY, RunTimeError::PermissionDenied},
    {ETXTBSY, RunTimeError::PermissionDenied},
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

RunTimeError FileError(int error, std::string_view operation, TextView path,
                       const std::string& native) {
  const std::string input = Quoted(path);
  if (error == ENOENT && !IsFolderThere(native))
    return RunTimeError::PathNotFound(operation, input);
  const auto row = std::ranges::find(kErrors, error, &ErrorRow::error);
  const Factory factory = row != kErrors.end() ? row->factory : RunTimeError::PathFileAccess;
  return factory(operation, input);
}

}  // namespace ZQ7Standard
