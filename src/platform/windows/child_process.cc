#include "platform/windows/child_process.h"

#include <array>
#include <memory>

namespace ZQ7Standard {
namespace {

/// The file that is always empty and keeps nothing, for a child.
Handle Nothing() {
  SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
  return FileHandle(CreateFileW(L"NUL", GENERIC_READ | GENERIC_WRITE,
                                FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited, OPEN_EXISTING, 0,
                                nullptr));
}

/// The host's standard handle for a child, whatever the host set; programs with windows have none.
Handle ForChild(DWORD standard) {
  HANDLE copy = nullptr;
  const HANDLE process = GetCurrentProcess();
  if (DuplicateHandle(process, GetStdHandle(standard), process, &copy, 0, TRUE,
                      DUPLICATE_SAME_ACCESS) == 0) {
    return Nothing();
  }
  return Handle(copy);
}

struct StandardHandles {
  Handle input = Nothing();
  Handle output = ForChild(STD_OUTPUT_HANDLE);
  Handle error = ForChild(STD_ERROR_HANDLE);
};

/// The list of the only handles that a child inherits.
class InheritedHandles {
 public:
  explicit InheritedHandles(const StandardHandles& handles)
      : handles_({handles.input.get(), handles.output.get(), handles.error.get()}) {
    SIZE_T size = 0;
    InitializeProcThreadAttributeList(nullptr, 1, 0, &size);
    memory_ = std::make_unique<char[]>(size);
    if (InitializeProcThreadAttributeList(Get(), 1, 0, &size) == 0) {
      memory_.reset();
      return;
    }
    UpdateProcThreadAttribute(Get(), 0, PROC_THREAD_ATTRIBUTE_HANDLE_LIST, handles_.data(),
                              sizeof handles_, nullptr, nullptr);
  }
  InheritedHandles(const InheritedHandles&) = delete;
  InheritedHandles& operator=(const InheritedHandles&) = delete;
  ~InheritedHandles() {
    if (memory_) DeleteProcThreadAttributeList(Get());
  }

  LPPROC_THREAD_ATTRIBUTE_LIST Get() const {
    return reinterpret_cast<LPPROC_THREAD_ATTRIBUTE_LIST>(memory_.get());
  }

 private:
  std::array<HANDLE, 3> handles_;
  std::unique_ptr<char[]> memory_;
};

/// A child of a host without a console gets none that the user would see.
DWORD FlagsFor(ChildKind kind) {
  const DWORD console = GetConsoleWindow() == nullptr ? CREATE_NO_WINDOW : 0;
  const DWORD kinds = kind == ChildKind::kAwaited ? CREATE_SUSPENDED : CREATE_NEW_PROCESS_GROUP;
  return console | kinds | CREATE_DEFAULT_ERROR_MODE | EXTENDED_STARTUPINFO_PRESENT;
}

/// Creates the process; returns false if the system refuses.
bool Create(const ChildStart& start, DWORD flags, PROCESS_INFORMATION& created) {
  const StandardHandles handles;
  const InheritedHandles inherited(handles);
  STARTUPINFOEXW info{};
  info.StartupInfo.cb = sizeof info;
  info.StartupInfo.dwFlags = STARTF_USESTDHANDLES;
  info.StartupInfo.hStdInput = handles.input.get();
  info.StartupInfo.hStdOutput = handles.output.get();
  info.StartupInfo.hStdError = handles.error.get();
  info.lpAttributeList = inherited.Get();
  std::wstring command_line = start.command_line;  // the system writes to it
  return CreateProcessW(start.path.c_str(), command_line.data(), nullptr, nullptr, TRUE, flags,
                        nullptr, start.folder.empty() ? nullptr : start.folder.c_str(),
                        &info.StartupInfo, &created) != 0;
}

}  // namespace

ChildProcess StartProcess(const ChildStart& start, ChildKind kind) {
  ChildProcess child;
  PROCESS_INFORMATION created{};
  const DWORD flags = FlagsFor(kind);
  const bool leaves_job = kind == ChildKind::kDetached;
  // A host's own job may end with the host, but may also keep its processes from leaving.
  const bool started =
      (leaves_job && Create(start, flags | CREATE_BREAKAWAY_FROM_JOB, created)) ||
      ((!leaves_job || GetLastError() == ERROR_ACCESS_DENIED) && Create(start, flags, created));
  if (!started) {
    child.error = GetLastError();
    return child;
  }
  child.number = created.dwProcessId;
  child.process.reset(created.hProcess);
  const Handle thread(created.hThread);
  if (kind == ChildKind::kDetached) return child;
  child.job.reset(CreateJobObjectW(nullptr, nullptr));
  if (AssignProcessToJobObject(child.job.get(), created.hProcess) == 0) {
    child.error = GetLastError();
    TerminateProcess(created.hProcess, 1);
    return child;
  }
  ResumeThread(created.hThread);
  return child;
}

}  // namespace ZQ7Standard
