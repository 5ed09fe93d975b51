#ifndef ZQ7STANDARD_SRC_PLATFORM_LINUX_TIME_STEP_H_
#define ZQ7STANDARD_SRC_PLATFORM_LINUX_TIME_STEP_H_

#include <chrono>
#include <cstdint>

namespace ZQ7Standard {

/// The step of last-modified times in file systems with that type of statfs(2); 1 ns for those not
/// known to have a longer one.
std::chrono::nanoseconds TimeStepOf(std::uint32_t file_system_type);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_LINUX_TIME_STEP_H_
