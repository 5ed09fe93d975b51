#ifndef ZQ7STANDARD_TESTS_SUPPORT_HOOKED_CALLS_H_
#define ZQ7STANDARD_TESTS_SUPPORT_HOOKED_CALLS_H_

#include <cerrno>
#include <functional>
#include <vector>

#include "platform/linux/system_calls.h"

namespace ZQ7Standard {

/// Asked by the calls of `kHookedCalls` first: returns the errno to fail with, or 0 to call the
/// system. `call` is the system's, such as `&kSystemCalls.fsync`.
inline std::function<int(const void* call)> call_hook;

/// The pauses made by `kHookedCalls`, whose clock advances only by them.
inline std::vector<std::chrono::nanoseconds> pauses;

template <auto Call>
struct Hooked;

template <typename Result, typename... Arguments, Result (*SystemCalls::*Call)(Arguments...)>
struct Hooked<Call> {
  static Result Do(Arguments... arguments) {
    errno = call_hook(&(kSystemCalls.*Call));
    return errno == 0 ? (kSystemCalls.*Call)(arguments...) : -1;
  }
};

/// Makes every write take more than one call.
inline ssize_t WriteHalf(int file, const void* bytes, std::size_t size) {
  return Hooked<&SystemCalls::write>::Do(file, bytes, (size + 1) / 2);
}

inline std::chrono::steady_clock::time_point TimeOfPauses() {
  std::chrono::steady_clock::time_point now;
  for (const auto pause : pauses) now += pause;
  return now;
}

inline constexpr SystemCalls kHookedCalls = {
    .openat = Hooked<&SystemCalls::openat>::Do,
    .fstat = Hooked<&SystemCalls::fstat>::Do,
    .fstatat = Hooked<&SystemCalls::fstatat>::Do,
    .readlinkat = Hooked<&SystemCalls::readlinkat>::Do,
    .flock = Hooked<&SystemCalls::flock>::Do,
    .fgetxattr = Hooked<&SystemCalls::fgetxattr>::Do,
    .read = Hooked<&SystemCalls::read>::Do,
    .unlinkat = Hooked<&SystemCalls::unlinkat>::Do,
    .fchown = Hooked<&SystemCalls::fchown>::Do,
    .fsetxattr = Hooked<&SystemCalls::fsetxattr>::Do,
    .fremovexattr = Hooked<&SystemCalls::fremovexattr>::Do,
    .fchmod = Hooked<&SystemCalls::fchmod>::Do,
    .write = WriteHalf,
    .fsync = Hooked<&SystemCalls::fsync>::Do,
    .close = Hooked<&SystemCalls::close>::Do,
    .renameat = Hooked<&SystemCalls::renameat>::Do,
    .now = TimeOfPauses,
    .sleep = [](std::chrono::nanoseconds time) { pauses.push_back(time); },
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_TESTS_SUPPORT_HOOKED_CALLS_H_
