#include "platform/linux/child_process.h"

#include <fcntl.h>
#include <linux/sched.h>
#include <poll.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>

#include "platform/linux/system_calls.h"

// Between the copy of the process and the program only calls that are safe in a signal handler are
// allowed: another thread of the host may have held any lock.

namespace ZQ7Standard {
namespace {

/// The pipe to the host, in the copies of it: the first number after the standard streams.
constexpr int kPipe = 3;
constexpr int kSignalStatus = 128;

using std::chrono::milliseconds;
using Timer = std::chrono::steady_clock;

/// How long a program may take to end once it is told to, and to be gone once it is ended.
constexpr milliseconds kEndTime{2000};

/// What a child tells the host through a pipe that its program does not inherit.
struct Report {
  enum Kind : std::int32_t { kNumber, kFailedStart, kFailedFolder } kind;
  std::int32_t value;  ///< the process number, or an errno
};

void Tell(Report report) {
  [[maybe_unused]] const auto written =
      Uninterrupted([&] { return write(kPipe, &report, sizeof report); });
}

/// A copy of this process that sends no signal when it ends; as fork returns.
std::int32_t CopyProcess(int* handle) {  // NOLINT(readability-non-const-*): the system writes it
  clone_args arguments{};
  arguments.flags = handle == nullptr ? 0 : CLONE_PIDFD;
  arguments.pidfd = reinterpret_cast<std::uintptr_t>(handle);  // NOLINT(*-reinterpret-cast)
  return static_cast<std::int32_t>(syscall(SYS_clone3, &arguments, sizeof arguments));
}

/// The settings of signals survive the start of a program, if they ignore one.
void ResetSignals() {
  struct sigaction standard {};
  standard.sa_handler = SIG_DFL;  // NOLINT(*-old-style-cast): the system's macro
  for (int signal = 1; signal < NSIG; ++signal) sigaction(signal, &standard, nullptr);
  sigset_t none;
  sigemptyset(&none);
  sigprocmask(SIG_SETMASK, &none, nullptr);
}

void ReadNothing() {
  const int nothing = open("/dev/null", O_RDONLY | O_CLOEXEC);
  if (nothing > 0) dup2(nothing, STDIN_FILENO);
}

/// Standard output is the file `output`, unless that is -1.
void WriteTo(int output) {
  if (output < 0) return;
  dup2(output, STDOUT_FILENO);
  const int nothing = open("/dev/null", O_WRONLY | O_CLOEXEC);
  if (nothing > 0) dup2(nothing, STDERR_FILENO);
}

/// Becomes the program. Returns only if that fails.
void Execute(const char* path, char* const* arguments, const char* folder) {
  if (*folder != '\0' && chdir(folder) != 0) return Tell({Report::kFailedFolder, errno});
  ReadNothing();
  ResetSignals();
  execv(path, arguments);
  Tell({Report::kFailedStart, errno});
}

/// Keeps the pipe alone of what the host has open: nobody shall wait for an end that only this
/// process holds back.
void CloseTheHostsFiles(int pipe) {
  dup3(pipe, kPipe, O_CLOEXEC);
  syscall(SYS_close_range, kPipe + 1, ~0U, 0);
}

/// Waits for the end of a child, and returns what it ended with as an exit status.
std::int32_t StatusOf(idtype_t kind, int child) {
  siginfo_t end{};
  Uninterrupted([&] { return waitid(kind, static_cast<id_t>(child), &end, WEXITED | __WALL); });
  return end.si_code == CLD_EXITED ? end.si_status : kSignalStatus + end.si_status;
}

/// The steps of the copy, which starts the program and, if it is awaited, ends as the program does.
/// The program itself could not be the host's child: starting it restores the signal at its end.
[[noreturn]] void RunCopy(const ChildStart& start, char* const* arguments, int pipe,
                          ChildKind kind) {
  WriteTo(start.output);
  CloseTheHostsFiles(pipe);
  const std::int32_t number = CopyProcess(nullptr);
  if (number < 0) Tell({Report::kFailedStart, errno});
  if (number == 0) {
    setsid();
    Tell({Report::kNumber, static_cast<std::int32_t>(getpid())});
    Execute(start.path.c_str(), arguments, start.folder.c_str());
    _exit(1);
  }
  close(kPipe);
  if (start.output >= 0) close(STDOUT_FILENO);
  _exit(kind == ChildKind::kAwaited && number > 0 ? StatusOf(P_PID, number) : 0);
}

std::vector<char*> Pointers(const std::vector<std::string>& arguments) {
  std::vector<char*> pointers;
  pointers.reserve(arguments.size() + 1);
  for (const std::string& argument : arguments) {
    pointers.push_back(const_cast<char*>(argument.c_str()));  // NOLINT(*-const-cast): execv's type
  }
  pointers.push_back(nullptr);
  return pointers;
}

/// Keeps signals from this thread, and so from a copy that it makes, whose handlers are the host's.
class BlockedSignals {
 public:
  BlockedSignals() {
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before_);
  }
  ~BlockedSignals() { pthread_sigmask(SIG_SETMASK, &before_, nullptr); }
  BlockedSignals(const BlockedSignals&) = delete;
  BlockedSignals& operator=(const BlockedSignals&) = delete;

 private:
  sigset_t before_{};
};

/// Starts the copy; as fork returns.
std::int32_t StartCopy(const ChildStart& start, char* const* arguments, int pipe, ChildKind kind,
                       int* handle) {
  const BlockedSignals blocked;
  const std::int32_t number = CopyProcess(handle);
  if (number == 0) RunCopy(start, arguments, pipe, kind);
  return number;
}

/// Reads what the child tells until the program runs, which closes the pipe.
void ReadReports(const Descriptor& pipe, StartedProcess& started) {
  for (Report report{};;) {
    const auto got = Uninterrupted([&] { return read(pipe.Number(), &report, sizeof report); });
    if (got != sizeof report) return;
    if (report.kind == Report::kNumber) {
      started.process.number = report.value;
    } else {
      const bool folder = report.kind == Report::kFailedFolder;
      started.failure = {folder ? ChildStep::kFolder : ChildStep::kStart, report.value};
    }
  }
}

}  // namespace

StartedProcess StartProcess(const ChildStart& start, ChildKind kind) {
  std::array<int, 2> ends{};
  if (pipe2(ends.data(), O_CLOEXEC) != 0) return {{}, {ChildStep::kStart, errno}};
  const Descriptor from_child(ends[0]);
  Descriptor to_host(ends[1]);
  // A host that closed its standard streams leaves their numbers free; the child sets them anew.
  to_host = Descriptor(fcntl(ends[1], F_DUPFD_CLOEXEC, kPipe));
  const std::vector<char*> arguments = Pointers(start.arguments);
  int handle = -1;
  const std::int32_t number = StartCopy(start, arguments.data(), to_host.Number(), kind, &handle);
  if (number < 0) return {{}, {ChildStep::kStart, errno}};
  StartedProcess started{{number, Descriptor(handle)}, {}};
  to_host = Descriptor();
  ReadReports(from_child, started);
  const bool remains = kind == ChildKind::kAwaited && started.failure.error == 0;
  if (!remains) ExitStatus(started.process);
  return started;
}

bool EndsWithin(const ChildProcess& process, milliseconds limit) {
  const auto deadline = Timer::now() + limit;
  for (;;) {
    const auto left = std::chrono::ceil<milliseconds>(deadline - Timer::now());
    pollfd ready = {process.handle.Number(), POLLIN, 0};
    const int found = poll(&ready, 1, static_cast<int>(std::max<std::int64_t>(left.count(), 0)));
    if (found > 0) return true;
    if (found == 0) return false;
    if (errno != EINTR) return false;
  }
}

void End(const ChildProcess& process) {
  kill(-process.number, SIGTERM);
  if (EndsWithin(process, kEndTime)) {
    ExitStatus(process);
    return;
  }
  kill(-process.number, SIGKILL);
  if (EndsWithin(process, kEndTime)) ExitStatus(process);
}

std::int32_t ExitStatus(const ChildProcess& process) {
  return StatusOf(P_PIDFD, process.handle.Number());
}

}  // namespace ZQ7Standard
