#ifndef ZQ7STANDARD_SRC_PLATFORM_WINDOWS_NEW_FILE_H_
#define ZQ7STANDARD_SRC_PLATFORM_WINDOWS_NEW_FILE_H_

#include <ZQ7Standard/Types.h>

#include <string>
#include <string_view>

namespace ZQ7Standard {

/// Creates the file `native` of `bytes`, whole or not at all. Returns false, and changes nothing,
/// if the name is taken. A killed process
/// may leave a ".zq7-" file beside it.
bool CreateWhole(TextView path, const std::wstring& native, std::string_view bytes);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_WINDOWS_NEW_FILE_H_
