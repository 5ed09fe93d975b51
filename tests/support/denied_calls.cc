#include "tests/support/denied_calls.h"

#include <linux/filter.h>
#include <linux/seccomp.h>
#include <stddef.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace ZQ7Standard {
namespace {

sock_filter Load(std::size_t offset) {
  return BPF_STMT(BPF_LD | BPF_W | BPF_ABS, static_cast<std::uint32_t>(offset));
}

/// Continues with the next instruction if so, otherwise after the next `else_skip`.
sock_filter If(std::uint16_t test, std::uint32_t value, std::uint8_t else_skip) {
  return BPF_JUMP(static_cast<std::uint16_t>(BPF_JMP | test | BPF_K), value, 0, else_skip);
}

sock_filter Return(std::uint32_t action) {
  return BPF_STMT(BPF_RET | BPF_K, action);
}

/// Denies the calls to this process from now on.
bool Deny(const std::vector<DeniedCall>& calls) {
  std::vector<sock_filter> program;
  for (const auto& [number, error, flags] : calls) {
    const auto failure = SECCOMP_RET_ERRNO | static_cast<std::uint32_t>(error);
    const sock_filter denied = Return(error == 0 ? SECCOMP_RET_KILL_PROCESS : failure);
    program.push_back(Load(offsetof(seccomp_data, nr)));
    program.push_back(If(BPF_JEQ, static_cast<std::uint32_t>(number), flags == 0 ? 1 : 3));
    if (flags != 0) program.push_back(Load(offsetof(seccomp_data, args[2])));
    if (flags != 0) program.push_back(If(BPF_JSET, flags, 1));
    program.push_back(denied);
  }
  program.push_back(Return(SECCOMP_RET_ALLOW));
  const sock_fprog filter{static_cast<std::uint16_t>(program.size()), program.data()};
  return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
         prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter) == 0;
}

}  // namespace

int RunDenied(const std::vector<DeniedCall>& calls, const std::function<void()>& steps) {
  const pid_t child = fork();
  if (child == 0) {
    if (!Deny(calls)) _exit(99);
    try {
      steps();
    } catch (...) {
      _exit(1);
    }
    _exit(0);
  }
  int status = 0;
  waitpid(child, &status, 0);
  return WIFSIGNALED(status) ? -WTERMSIG(status) : WEXITSTATUS(status);
}

}  // namespace ZQ7Standard
