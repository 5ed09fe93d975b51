#include "platform/windows/limited_call.h"

#include <windows.h>

#include <algorithm>

#include "platform/windows/handle.h"

namespace ZQ7Standard {
namespace {

struct Call {
  std::function<void()> function;
  HMODULE library = nullptr;
};

DWORD CALLBACK RunCall(void* given) {
  HMODULE library = nullptr;
  {
    const std::unique_ptr<Call> call(static_cast<Call*>(given));
    library = call->library;
    call->function();
  }
  FreeLibraryAndExitThread(library, 0);
}

/// The library that this code is in, which stays loaded until it is freed once more.
HMODULE KeptLibrary() {
  HMODULE library = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS, reinterpret_cast<LPCWSTR>(&RunCall),
                     &library);
  return library;
}

}  // namespace

bool EndsWithin(std::function<void()> call, std::chrono::milliseconds limit) {
  auto given = std::make_unique<Call>(Call{std::move(call), KeptLibrary()});
  const Handle thread(CreateThread(nullptr, 0, RunCall, given.get(), 0, nullptr));
  if (!thread) {
    FreeLibrary(given->library);
    return false;
  }
  static_cast<void>(given.release());  // the thread's now
  const auto wait = static_cast<DWORD>(std::max<std::int64_t>(limit.count(), 0));
  return WaitForSingleObject(thread.get(), wait) == WAIT_OBJECT_0;
}

}  // namespace ZQ7Standard
