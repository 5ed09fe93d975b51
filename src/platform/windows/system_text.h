#ifndef ZQ7STANDARD_SRC_PLATFORM_WINDOWS_SYSTEM_TEXT_H_
#define ZQ7STANDARD_SRC_PLATFORM_WINDOWS_SYSTEM_TEXT_H_

#include <windows.h>

#include <string>

namespace ZQ7Standard {

/// The system's text for an error of its own, on one line, in UTF-8.
std::string SystemText(DWORD error);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_WINDOWS_SYSTEM_TEXT_H_
