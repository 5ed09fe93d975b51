// What the system and regsvr32 call.
#include <algorithm>
#include <atomic>
#include <string_view>

#include "classes.h"
#include "failures.h"
#include "module.h"
#include "registration.h"

namespace ZQ7Windows {
namespace {

/// Makes the objects of a class.
class Factory final : public IClassFactory {
 public:
  explicit Factory(const ServerRow& row) : row_(row) {}

  STDMETHODIMP QueryInterface(REFIID id, void** found) override {
    if (found == nullptr) return E_POINTER;
    const bool known = id == IID_IUnknown || id == IID_IClassFactory;
    *found = known ? this : nullptr;
    if (known) AddRef();
    return known ? S_OK : E_NOINTERFACE;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
  STDMETHODIMP_(ULONG) Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

  STDMETHODIMP CreateInstance(IUnknown* outer, REFIID id, void** made) override {
    if (made == nullptr) return E_POINTER;
    *made = nullptr;
    if (outer != nullptr) return CLASS_E_NOAGGREGATION;
    try {
      const ComPtr<IUnknown> object(row_.create(row_));
      return object->QueryInterface(id, made);
    } catch (...) {
      return Failed();
    }
  }
  STDMETHODIMP LockServer(BOOL lock) override {
    LockModule(lock != FALSE);
    return S_OK;
  }

 private:
  ~Factory() = default;

  /// The code of the exception that is being handled.
  HRESULT Failed() const noexcept {
    try {
      const auto& owner = *ZQ7Standard::Automation::FindClass(row_.name);
      return SetFailure(CaughtFailure(owner, "", {}), *row_.interface_id);
    } catch (...) {
      return E_OUTOFMEMORY;  // for the report itself
    }
  }

  LiveMark live_;
  std::atomic<ULONG> references_ = 1;
  const ServerRow& row_;
};

/// Runs a registration, for the system's C functions.
HRESULT Guarded(HRESULT (*act)(RegisteredFor whom), RegisteredFor whom) noexcept {
  try {
    return act(whom);
  } catch (...) {
    return E_OUTOFMEMORY;
  }
}

}  // namespace
}  // namespace ZQ7Windows

using namespace ZQ7Windows;

extern "C" BOOL WINAPI DllMain(HINSTANCE handle, DWORD reason, LPVOID /*reserved*/) {
  if (reason == DLL_PROCESS_ATTACH) SetModuleHandle(handle);
  return TRUE;
}

STDAPI DllGetClassObject(REFCLSID id, REFIID interface_id, LPVOID* found) {
  if (found == nullptr) return E_POINTER;
  *found = nullptr;
  const auto servers = Servers();
  const auto row =
      std::ranges::find_if(servers, [&](const ServerRow& server) { return *server.id == id; });
  if (row == servers.end()) return CLASS_E_CLASSNOTAVAILABLE;
  const ComPtr<Factory> factory(new (std::nothrow) Factory(*row));
  return factory ? factory->QueryInterface(interface_id, found) : E_OUTOFMEMORY;
}

STDAPI DllCanUnloadNow() {
  if (IsModuleInUse()) return S_FALSE;
  ReleaseTypeLibrary();
  return S_OK;
}

STDAPI DllRegisterServer() {
  return Guarded(Register, RegisteredFor::kMachine);
}

STDAPI DllUnregisterServer() {
  return Guarded(Unregister, RegisteredFor::kMachine);
}

/// `regsvr32 /n /i:user`, with /u to take it back.
STDAPI DllInstall(BOOL install, LPCWSTR whom) {
  if (whom == nullptr || std::wstring_view(whom) != L"user") return E_INVALIDARG;
  return Guarded(install != FALSE ? Register : Unregister, RegisteredFor::kUser);
}
