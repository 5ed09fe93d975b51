#ifndef ZQ7STANDARD_SRC_PLATFORM_WINDOWS_FILE_ERRORS_H_
#define ZQ7STANDARD_SRC_PLATFORM_WINDOWS_FILE_ERRORS_H_

#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/Types.h>
#include <windows.h>

#include <string>
#include <string_view>

namespace ZQ7Standard {

/// Whether an error of the system means that a path does not exist.
bool MeansMissing(DWORD error);

/// The run-time error for an error of the system in `step` on the file `path`, whose native path
/// distinguishes a folder, which cannot be used as a file (75), from a denied right (70).
RunTimeError FileError(DWORD number, std::string_view step, TextView path,
                       const std::wstring& native);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_WINDOWS_FILE_ERRORS_H_
