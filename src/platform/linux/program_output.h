#ifndef ZQ7STANDARD_SRC_PLATFORM_LINUX_PROGRAM_OUTPUT_H_
#define ZQ7STANDARD_SRC_PLATFORM_LINUX_PROGRAM_OUTPUT_H_

#include <ZQ7Standard/Types.h>

#include <chrono>
#include <optional>
#include <string>
#include <vector>

namespace ZQ7Standard {

/// What an installed program writes until its end, up to 1 MiB; nullopt if it is not installed.
/// Raises 70, after ending it, if it does not end within `limit`.
std::optional<std::string> ProgramOutput(TextView program,
                                         const std::vector<std::string>& arguments,
                                         std::chrono::milliseconds limit);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_LINUX_PROGRAM_OUTPUT_H_
