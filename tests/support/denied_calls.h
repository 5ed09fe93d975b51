#ifndef ZQ7STANDARD_TESTS_SUPPORT_DENIED_CALLS_H_
#define ZQ7STANDARD_TESTS_SUPPORT_DENIED_CALLS_H_

#include <cstdint>
#include <functional>
#include <vector>

namespace ZQ7Standard {

/// A system call that must fail.
struct DeniedCall {
  long number;              ///< such as SYS_linkat
  int error;                ///< its errno; 0 kills the process instead
  std::uint32_t flags = 0;  ///< fails only with one of these in its third argument
};

/// Runs `steps` in a process of its own, to which the system denies `calls`. Returns its exit
/// status, which is 0 if `steps` did not throw, or minus the signal that killed it.
int RunDenied(const std::vector<DeniedCall>& calls, const std::function<void()>& steps);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_TESTS_SUPPORT_DENIED_CALLS_H_
