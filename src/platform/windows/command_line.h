#ifndef ZQ7STANDARD_SRC_PLATFORM_WINDOWS_COMMAND_LINE_H_
#define ZQ7STANDARD_SRC_PLATFORM_WINDOWS_COMMAND_LINE_H_

#include <ZQ7Standard/Types.h>

#include <string>
#include <vector>

namespace ZQ7Standard {

/// The command line of a program: its path and arguments, each quoted so that the program takes
/// them apart again as they are. Each ends at its first U+0000.
std::wstring CommandLine(const std::wstring& program, const std::vector<Text>& arguments);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_WINDOWS_COMMAND_LINE_H_
