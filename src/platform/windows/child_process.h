#ifndef ZQ7STANDARD_SRC_PLATFORM_WINDOWS_CHILD_PROCESS_H_
#define ZQ7STANDARD_SRC_PLATFORM_WINDOWS_CHILD_PROCESS_H_

#include <windows.h>

#include <string>

#include "platform/windows/handle.h"

namespace ZQ7Standard {

/// A program to start, all in native terms.
struct ChildStart {
  std::wstring path;
  std::wstring command_line;
  std::wstring folder;  ///< empty: the host's own
};

enum class ChildKind {
  kAwaited,   ///< ended together with the processes that it starts
  kDetached,  ///< goes on by itself
};

struct ChildProcess {
  DWORD number = 0;
  Handle process = nullptr;
  Handle job = nullptr;  ///< of an awaited one, and of those that it starts
  DWORD error = 0;       ///< of the system, if it could not be started
};

ChildProcess StartProcess(const ChildStart& start, ChildKind kind);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_WINDOWS_CHILD_PROCESS_H_
