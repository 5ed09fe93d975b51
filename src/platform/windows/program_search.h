#ifndef ZQ7STANDARD_SRC_PLATFORM_WINDOWS_PROGRAM_SEARCH_H_
#define ZQ7STANDARD_SRC_PLATFORM_WINDOWS_PROGRAM_SEARCH_H_

#include <ZQ7Standard/Services.h>
#include <ZQ7Standard/Types.h>

#include <string>

namespace ZQ7Standard {

/// The native path of a program: of a path text, or of the first file of that name in the folders
/// of PATH. Either may lack its extension. Empty if there is no such file.
std::wstring ProgramPath(TextView program, const DriveMap& drives);

/// Whether the system starts such a file itself. Others, such as batch files, would be read by a
/// shell, and the arguments with them.
bool IsProgramName(const std::wstring& path);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_WINDOWS_PROGRAM_SEARCH_H_
