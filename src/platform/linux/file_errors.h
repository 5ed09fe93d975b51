#ifndef ZQ7STANDARD_SRC_PLATFORM_LINUX_FILE_ERRORS_H_
#define ZQ7STANDARD_SRC_PLATFORM_LINUX_FILE_ERRORS_H_

#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/Types.h>

#include <string>
#include <string_view>

namespace ZQ7Standard {

/// Whether an `errno` says that a path names nothing.
bool MeansMissing(int error);

/// Whether an `errno` says that the user has no right to do that.
bool MeansDenied(int error);

/// The run-time error of an `errno` that `step` met at the file `path`, whose native path
/// tells a missing file (53) from a missing folder (76).
RunTimeError FileError(int number, std::string_view step, TextView path, const std::string& native);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_LINUX_FILE_ERRORS_H_
