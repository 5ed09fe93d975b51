#ifndef ZQ7STANDARD_SRC_PLATFORM_LINUX_PROGRAM_SEARCH_H_
#define ZQ7STANDARD_SRC_PLATFORM_LINUX_PROGRAM_SEARCH_H_

#include <ZQ7Standard/Services.h>
#include <ZQ7Standard/Types.h>

#include <string>

namespace ZQ7Standard {

/// The native path of a program: of a path text, or of the first executable file of that name in
/// the folders of PATH; empty if there is none.
std::string ProgramPath(TextView program, const DriveMap& drives);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_LINUX_PROGRAM_SEARCH_H_
