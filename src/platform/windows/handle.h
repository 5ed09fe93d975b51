#ifndef ZQ7STANDARD_SRC_PLATFORM_WINDOWS_HANDLE_H_
#define ZQ7STANDARD_SRC_PLATFORM_WINDOWS_HANDLE_H_

#include <windows.h>

#include <memory>

namespace ZQ7Standard {

struct CloseHandleOf {
  using pointer = HANDLE;
  void operator()(HANDLE handle) const { CloseHandle(handle); }
};

/// A handle of the system, closed by the destructor; null if there is none.
using Handle = std::unique_ptr<HANDLE, CloseHandleOf>;

/// The handle of a file, which the system gives as INVALID_HANDLE_VALUE if there is none.
inline Handle FileHandle(HANDLE handle) {
  return Handle(handle == INVALID_HANDLE_VALUE ? nullptr : handle);
}

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_WINDOWS_HANDLE_H_
