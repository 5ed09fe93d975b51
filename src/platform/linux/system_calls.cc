#include "platform/linux/system_calls.h"

#include <fcntl.h>
#include <stdio.h>
#include <sys/file.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <thread>

namespace ZQ7Standard {
namespace {

int OpenAt(int folder, const char* name, int flags, mode_t mode) {
  return openat(folder, name, flags, mode);
}

void Sleep(std::chrono::nanoseconds time) {
  std::this_thread::sleep_for(time);
}

}  // namespace

constinit const SystemCalls kSystemCalls = {
    .openat = OpenAt,
    .fstat = fstat,
    .fstatat = fstatat,
    .readlinkat = readlinkat,
    .flock = flock,
    .fgetxattr = fgetxattr,
    .read = read,
    .unlinkat = unlinkat,
    .fchown = fchown,
    .fsetxattr = fsetxattr,
    .fremovexattr = fremovexattr,
    .fchmod = fchmod,
    .write = write,
    .fsync = fsync,
    .close = close,
    .renameat = renameat,
    .now = std::chrono::steady_clock::now,
    .sleep = Sleep,
};

bool WriteAll(const SystemCalls& calls, int file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count =
        Uninterrupted([&] { return calls.write(file, bytes.data(), bytes.size()); });
    if (count < 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  return true;
}

}  // namespace ZQ7Standard
