#ifndef ZQ7STANDARD_SRC_PLATFORM_LINUX_CHILD_PROCESS_H_
#define ZQ7STANDARD_SRC_PLATFORM_LINUX_CHILD_PROCESS_H_

#include <chrono>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/linux/descriptor.h"

namespace ZQ7Standard {

/// A program to start, all in native terms.
struct ChildStart {
  std::string path;
  std::vector<std::string> arguments;  ///< the first is the program's own name
  std::string folder;                  ///< empty: the host's own
  int output = -1;                     ///< what it writes to, its errors to nothing; -1: the host's
};

enum class ChildKind {
  kAwaited,   ///< its end is known to the host
  kDetached,  ///< goes on by itself
};

struct ChildProcess {
  std::int32_t number = 0;           ///< also of its process group and session
  Descriptor handle = Descriptor();  ///< of an awaited one; readable once it has ended
};

/// Which step failed before the program ran, and with which errno; 0 if none did.
enum class ChildStep : std::int32_t { kStart, kFolder };
struct ChildFailure {
  ChildStep step = ChildStep::kStart;
  int error = 0;
};

struct StartedProcess {
  ChildProcess process;
  ChildFailure failure;
};

/// Starts a program and waits until it runs or could not be started. The host gets no SIGCHLD, and
/// its own waiting for children does not see this one.
StartedProcess StartProcess(const ChildStart& start, ChildKind kind);

/// Waits until an awaited process ends; returns whether it did.
bool EndsWithin(const ChildProcess& process, std::chrono::milliseconds limit);

/// Ends an awaited process and those that it started.
void End(const ChildProcess& process);

/// Takes the exit status of an awaited process that has ended: 128 and the signal's number if a
/// signal ended it.
std::int32_t ExitStatus(const ChildProcess& process);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_LINUX_CHILD_PROCESS_H_
