// The least that a server of one dual class does, to measure beside.
#include "bindings/windows/com.h"
//
#include <initguid.h>

#include "trivial_server.h"
//
#include <atomic>
#include <string>

namespace {

HMODULE module_handle = nullptr;
std::atomic<long> live_count = 0;

const std::wstring kClass = L"Software\\Classes\\CLSID\\{2E1B8E0A-6E0D-4B7E-9F3C-3A5D0C1F7B03}";

class Trivial final : public ITrivialObject {
 public:
  Trivial() { ++live_count; }
  STDMETHODIMP QueryInterface(REFIID id, void** found) override {
    const bool known = id == IID_IUnknown || id == IID_IDispatch || id == IID_ITrivialObject;
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
  STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID* ids) override {
    *ids = 1;
    return S_OK;
  }
  STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS* given, VARIANT* result, EXCEPINFO*,
                      UINT*) override {
    result->vt = VT_R8;
    return Next(given->rgvarg[0].dblVal, &result->dblVal);
  }
  STDMETHODIMP Next(double number, double* result) override {
    *result = number + 1;
    return S_OK;
  }

 private:
  ~Trivial() { --live_count; }

  std::atomic<ULONG> references_ = 1;
};

class Factory final : public IClassFactory {
 public:
  STDMETHODIMP QueryInterface(REFIID id, void** found) override {
    const bool known = id == IID_IUnknown || id == IID_IClassFactory;
    *found = known ? this : nullptr;
    return known ? S_OK : E_NOINTERFACE;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return 2; }
  STDMETHODIMP_(ULONG) Release() override { return 1; }
  STDMETHODIMP CreateInstance(IUnknown*, REFIID id, void** made) override {
    const ZQ7Windows::ComPtr<Trivial> object(new Trivial);
    return object->QueryInterface(id, made);
  }
  STDMETHODIMP LockServer(BOOL) override { return S_OK; }
};

bool Write(const std::wstring& key, const wchar_t* name, const std::wstring& value) {
  return RegSetKeyValueW(ZQ7Windows::kMachineRoot, key.c_str(), name, REG_SZ, value.c_str(),
                         static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t))) == ERROR_SUCCESS;
}

}  // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE handle, DWORD reason, LPVOID) {
  if (reason == DLL_PROCESS_ATTACH) module_handle = handle;
  return TRUE;
}

STDAPI DllGetClassObject(REFCLSID, REFIID id, LPVOID* found) {
  static Factory factory;
  return factory.QueryInterface(id, found);
}

STDAPI DllCanUnloadNow() {
  return live_count == 0 ? S_OK : S_FALSE;
}

STDAPI DllRegisterServer() {
  std::wstring path(MAX_PATH, L'\0');
  path.resize(GetModuleFileNameW(module_handle, path.data(), MAX_PATH));
  const std::wstring server = kClass + L"\\InprocServer32";
  const bool written =
      Write(server, nullptr, path) && Write(server, L"ThreadingModel", L"Apartment");
  return written ? S_OK : SELFREG_E_CLASS;
}

STDAPI DllUnregisterServer() {
  return RegDeleteTreeW(ZQ7Windows::kMachineRoot, kClass.c_str()) == ERROR_SUCCESS ? S_OK
                                                                             : SELFREG_E_CLASS;
}
