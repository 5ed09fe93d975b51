#ifndef ZQ7STANDARD_SRC_PLATFORM_LINUX_SYSTEM_CALLS_H_
#define ZQ7STANDARD_SRC_PLATFORM_LINUX_SYSTEM_CALLS_H_

#include <sys/stat.h>
#include <sys/types.h>

#include <cerrno>
#include <chrono>
#include <cstddef>
#include <string_view>

namespace ZQ7Standard {

/// The system calls that rewrite a file. Tests replace them: by one that fails, or by some that
/// record what they are asked to do.
struct SystemCalls {
  int (*openat)(int folder, const char* name, int flags, mode_t mode);
  int (*fstat)(int file, struct stat* status);
  int (*fstatat)(int folder, const char* name, struct stat* status, int flags);
  ssize_t (*readlinkat)(int folder, const char* name, char* buffer, std::size_t size);
  int (*flock)(int file, int operation);
  ssize_t (*fgetxattr)(int file, const char* name, void* value, std::size_t size);
  ssize_t (*read)(int file, void* buffer, std::size_t size);
  int (*unlinkat)(int folder, const char* name, int flags);
  int (*fchown)(int file, uid_t owner, gid_t group);
  int (*fsetxattr)(int file, const char* name, const void* value, std::size_t size, int flags);
  int (*fremovexattr)(int file, const char* name);
  int (*fchmod)(int file, mode_t mode);
  ssize_t (*write)(int file, const void* bytes, std::size_t size);
  int (*fsync)(int file);
  int (*close)(int file);
  int (*renameat)(int folder, const char* name, int new_folder, const char* new_name);
  std::chrono::steady_clock::time_point (*now)();
  void (*sleep)(std::chrono::nanoseconds time);
};

/// The system's own.
extern const SystemCalls kSystemCalls;

/// Writes all of `bytes` to an open file, by as many writes as it takes. Returns false and sets
/// errno if one fails.
bool WriteAll(const SystemCalls& calls, int file, std::string_view bytes);

/// Repeats a system call as long as signals interrupt it, and returns its result.
template <typename Call>
auto Uninterrupted(Call call) {
  auto result = call();
  while (result < 0 && errno == EINTR) result = call();
  return result;
}

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_LINUX_SYSTEM_CALLS_H_
