#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/platform/programs.h>
#include <windows.h>

#include <algorithm>
#include <string>
#include <utility>

#include "base/raise.h"
#include "platform/windows/child_process.h"
#include "platform/windows/command_line.h"
#include "platform/windows/file_errors.h"
#include "platform/windows/native_path.h"
#include "platform/windows/program_search.h"
#include "platform/windows/system_text.h"

namespace ZQ7Standard {
namespace {

using std::chrono::milliseconds;

/// How long processes may take to be gone once they are ended.
constexpr DWORD kEndTime = 2000;  // milliseconds

bool EndsWithin(HANDLE process, milliseconds limit) {
  constexpr milliseconds kLongest{INFINITE - 1};
  const auto wait = std::clamp(limit, milliseconds{0}, kLongest);
  return WaitForSingleObject(process, static_cast<DWORD>(wait.count())) == WAIT_OBJECT_0;
}

std::wstring FolderOf(const ProgramStart& start, const DriveMap& drives) {
  if (start.folder.empty()) return {};
  std::wstring folder = NativePath(start.folder, drives);
  const DWORD attributes = GetFileAttributesW(folder.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
    throw FileError(ERROR_PATH_NOT_FOUND, "start in", start.folder, folder);
  }
  return folder;
}

class WindowsPrograms final : public Programs {
 public:
  explicit WindowsPrograms(DriveMap drives) : drives_(std::move(drives)) {}

  std::int32_t Start(const ProgramStart& start) override {
    return static_cast<std::int32_t>(StartChild(start, ChildKind::kDetached).number);
  }

  std::int32_t Run(const ProgramStart& start, milliseconds limit) override {
    const ChildProcess child = StartChild(start, ChildKind::kAwaited);
    if (!EndsWithin(child.process.get(), limit)) {
      TerminateJobObject(child.job.get(), 1);
      WaitForSingleObject(child.process.get(), kEndTime);
      throw RunTimeError(Error::kPermissionDenied, Utf8(start.program) + " did not end within " +
                                                       std::to_string(limit.count()) +
                                                       " ms and was ended");
    }
    DWORD status = 0;
    GetExitCodeProcess(child.process.get(), &status);
    return static_cast<std::int32_t>(status);
  }

 private:
  ChildProcess StartChild(const ProgramStart& start, ChildKind kind) const {
    const std::wstring path = ProgramPath(start.program, drives_);
    if (path.empty()) {
      throw RunTimeError(Error::kFileNotFound, Utf8(start.program) + " is not there or in PATH");
    }
    if (!IsProgramName(path)) {
      throw RunTimeError(Error::kPermissionDenied, Utf8(start.program) + " is not a program");
    }
    const std::wstring folder = FolderOf(start, drives_);
    ChildProcess child = StartProcess({path, CommandLine(path, start.arguments), folder}, kind);
    if (child.error == 0) return child;
    throw RunTimeError(Error::kPermissionDenied,
                       Utf8(start.program) + ": " + SystemText(child.error));
  }

  DriveMap drives_;
};

}  // namespace

std::shared_ptr<Programs> SystemPrograms(DriveMap drives) {
  return std::make_shared<WindowsPrograms>(std::move(drives));
}

}  // namespace ZQ7Standard
