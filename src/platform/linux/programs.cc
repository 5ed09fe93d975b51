#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/platform/programs.h>
#include <fcntl.h>
#include <poll.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <string>
#include <utility>

#include "base/unicode.h"
#include "platform/linux/child_process.h"
#include "platform/linux/file_errors.h"
#include "platform/linux/native_path.h"
#include "platform/linux/program_search.h"

namespace ZQ7Standard {
namespace {

using std::chrono::milliseconds;
using Clock = std::chrono::steady_clock;

/// How long a program may take to end once it is told to, and to be gone once it is ended.
constexpr milliseconds kEndTime{2000};

/// Waits until the process ends; returns whether it did.
bool EndsWithin(const Descriptor& process, milliseconds limit) {
  const auto deadline = Clock::now() + limit;
  for (;;) {
    const auto left = std::chrono::ceil<milliseconds>(deadline - Clock::now());
    pollfd ready = {process.Number(), POLLIN, 0};
    const int found = poll(&ready, 1, static_cast<int>(std::max<std::int64_t>(left.count(), 0)));
    if (found > 0) return true;
    if (found == 0) return false;
    if (errno != EINTR) return false;
  }
}

class LinuxPrograms final : public Programs {
 public:
  explicit LinuxPrograms(DriveMap drives) : drives_(std::move(drives)) {}

  std::int32_t Start(const ProgramStart& start) override {
    ChildProcess child = StartChild(start, ChildKind::kDetached);
    return child.number;
  }

  std::int32_t Run(const ProgramStart& start, milliseconds limit) override {
    const ChildProcess child = StartChild(start, ChildKind::kAwaited);
    if (!EndsWithin(child.handle, limit)) {
      End(child);
      throw RunTimeError(Error::kPermissionDenied, Utf8(start.program) + " did not end within " +
                                                       std::to_string(limit.count()) +
                                                       " ms and was ended");
    }
    return ExitStatus(child);
  }

 private:
  ChildProcess StartChild(const ProgramStart& start, ChildKind kind) const {
    const std::string path = ProgramPath(start.program, drives_);
    if (path.empty()) {
      throw RunTimeError(Error::kFileNotFound, Utf8(start.program) + " is not in PATH");
    }
    ChildStart child = {.path = path, .arguments = {path}, .folder = {}};
    for (const Text& argument : start.arguments) child.arguments.push_back(Utf8(argument));
    if (!start.folder.empty()) child.folder = NativePath(start.folder, drives_);
    auto [process, failure] = StartProcess(child, kind);
    if (failure.error == 0) return std::move(process);
    if (failure.step == ChildStep::kFolder) {
      throw FileError(failure.error, "start in", start.folder, child.folder + "/");
    }
    throw FileError(failure.error, "start", start.program, path);
  }

  static void End(const ChildProcess& child) {
    kill(-child.number, SIGTERM);
    if (EndsWithin(child.handle, kEndTime)) {
      ExitStatus(child);
      return;
    }
    kill(-child.number, SIGKILL);
    if (EndsWithin(child.handle, kEndTime)) ExitStatus(child);
  }

  DriveMap drives_;
};

}  // namespace

std::shared_ptr<Programs> SystemPrograms(DriveMap drives) {
  return std::make_shared<LinuxPrograms>(std::move(drives));
}

}  // namespace ZQ7Standard
