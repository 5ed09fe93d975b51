#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/platform/programs.h>

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

class LinuxPrograms final : public Programs {
 public:
  explicit LinuxPrograms(DriveMap drives) : drives_(std::move(drives)) {}

  std::int32_t Start(const ProgramStart& start) override {
    ChildProcess child = StartChild(start, ChildKind::kDetached);
    return child.number;
  }

  std::int32_t Run(const ProgramStart& start, milliseconds limit) override {
    const ChildProcess child = StartChild(start, ChildKind::kAwaited);
    if (!EndsWithin(child, limit)) {
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
    StartedProcess started = StartProcess(child, kind);
    const ChildFailure& failure = started.failure;
    if (failure.error == 0) return std::move(started.process);
    if (failure.step == ChildStep::kFolder) {
      throw FileError(failure.error, "start in", start.folder, child.folder + "/");
    }
    throw FileError(failure.error, "start", start.program, path);
  }

  DriveMap drives_;
};

}  // namespace

std::shared_ptr<Programs> SystemPrograms(DriveMap drives) {
  return std::make_shared<LinuxPrograms>(std::move(drives));
}

}  // namespace ZQ7Standard
