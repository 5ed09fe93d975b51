#ifndef ZQ7STANDARD_SRC_PLATFORM_LINUX_FILE_ERRORS_H_
#define ZQ7STANDARD_SRC_PLATFORM_LINUX_FILE_ERRORS_H_

#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/Types.h>

#include <string>
#include <string_view>

namespace ZQ7Standard {

/// Whether an `errno` means that a path does not exist.
bool MeansMissing(int error);

/// Whether an `errno` means that the user lacks permission.
bool MeansDenied(int error);

/// The run-time error for an `errno` of `step` on the file `path`, whose native path distinguishes
/// a missing file (53) from a missing folder (76).
RunTimeError FileError(int number, std::string_view step, TextView path, const std::string& native);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_LINUX_FILE_ERRORS_H_
