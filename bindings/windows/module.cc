#include "module.h"

#include <array>
#include <atomic>
#include <mutex>

namespace ZQ7Windows {
namespace {

HMODULE module_handle = nullptr;
std::atomic<long> live_count = 0;

std::mutex library_mutex;
// A plain pointer: when a process ends, the system's own libraries may be gone before this one.
ITypeLib* library = nullptr;

}  // namespace

LiveMark::LiveMark() {
  ++live_count;
}

LiveMark::~LiveMark() {
  --live_count;
}

void LockModule(bool lock) {
  live_count += lock ? 1 : -1;
}

bool IsModuleInUse() {
  return live_count != 0;
}

void SetModuleHandle(HMODULE handle) {
  module_handle = handle;
}

std::wstring ModulePath() {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length =
        GetModuleFileNameW(module_handle, path.data(), static_cast<DWORD>(path.size()));
    if (length < path.size()) return path.substr(0, length);
    path.resize(2 * path.size());
  }
}

HRESULT FindTypeInfo(REFGUID id, ITypeInfo** found) {
  const std::lock_guard lock(library_mutex);
  if (library == nullptr) {
    const HRESULT loaded = LoadTypeLibEx(ModulePath().c_str(), REGKIND_NONE, &library);
    if (FAILED(loaded)) return loaded;
  }
  return library->GetTypeInfoOfGuid(id, found);
}

void ReleaseTypeLibrary() {
  const std::lock_guard lock(library_mutex);
  const ComPtr<ITypeLib> released(std::exchange(library, nullptr));
}

std::wstring GuidText(REFGUID id) {
  std::array<wchar_t, 39> text;
  StringFromGUID2(id, text.data(), static_cast<int>(text.size()));
  return text.data();
}

}  // namespace ZQ7Windows
