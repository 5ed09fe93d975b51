#ifndef ZQ7STANDARD_TESTS_SUPPORT_CHILDREN_H_
#define ZQ7STANDARD_TESTS_SUPPORT_CHILDREN_H_

#include <sys/wait.h>
#include <unistd.h>

#include <functional>

namespace ZQ7Standard {

/// The user and group that own nothing.
inline constexpr unsigned kNobody = 65534;

/// Runs `work` in a child whose status is the result; `End` waits for it.
inline pid_t Begin(const std::function<int()>& work) {
  const pid_t child = fork();
  if (child == 0) _exit(work());
  return child;
}

/// The status of a child that ended, or minus the signal that killed it.
inline int End(pid_t child) {
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_TESTS_SUPPORT_CHILDREN_H_
