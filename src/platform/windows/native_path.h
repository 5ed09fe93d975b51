#ifndef ZQ7STANDARD_SRC_PLATFORM_WINDOWS_NATIVE_PATH_H_
#define ZQ7STANDARD_SRC_PLATFORM_WINDOWS_NATIVE_PATH_H_

#include <ZQ7Standard/platform/path_text.h>
#include <windows.h>

#include <string>

namespace ZQ7Standard {

/// The native path of a path text, which is the text itself, with "\" for "/". A drive that
/// `drives` names is its folder, out of which ".." never leads. A long path is made absolute and
/// gets the prefix "\\?\". What no name can hold (U+0000) becomes U+FFFD.
std::wstring NativePath(TextView path, const DriveMap& drives);

/// The path of an open file or folder itself, where links led to it from `native`, which it is if
/// the system does not tell (Wine does not, beyond MAX_PATH).
std::wstring FinalPathOf(HANDLE file, const std::wstring& native);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_WINDOWS_NATIVE_PATH_H_
