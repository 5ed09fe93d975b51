// The five tasks of docs/hosts.md from C++, through the automation server.
#include <comutil.h>
#include <initguid.h>
#include <windows.h>

#include "zq7standard_server.h"
//
#include <cstdio>
#include <string>

namespace {

template <typename Interface>
Interface* New(REFCLSID class_id, REFIID id) {
  void* made = nullptr;
  CoCreateInstance(class_id, nullptr, CLSCTX_INPROC_SERVER, id, &made);
  return static_cast<Interface*>(made);
}

void Print(BSTR text) {
  std::string bytes(4 * SysStringLen(text), '\0');
  const int length =
      WideCharToMultiByte(CP_UTF8, 0, text, static_cast<int>(SysStringLen(text)), bytes.data(),
                          static_cast<int>(bytes.size()), nullptr, nullptr);
  std::printf("%.*s\n", length, bytes.c_str());
}

class CellPrinter final : public IDispatch {
 public:
  STDMETHODIMP QueryInterface(REFIID id, void** found) override {
    const bool known =
        id == IID_IUnknown || id == IID_IDispatch || id == DIID_DGridValueObjectEvents;
    *found = known ? this : nullptr;
    return known ? S_OK : E_NOINTERFACE;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return 2; }
  STDMETHODIMP_(ULONG) Release() override { return 1; }
  STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS* given, VARIANT*, EXCEPINFO*,
                      UINT*) override {
    std::printf("row %ld, column %ld\n", *given->rgvarg[1].plVal, *given->rgvarg[0].plVal);
    return S_OK;
  }
};

void Run() {
  _bstr_t text;
  auto* baht = New<IBahtStringObject>(CLSID_BahtStringObject, IID_IBahtStringObject);
  double amount = 121.50;
  baht->BahtString(&amount, VARIANT_FALSE, VARIANT_FALSE, nullptr, nullptr, text.GetAddress());
  Print(text);
  baht->Release();

  // The user's own settings say how dates are typed: here day first, in the Buddhist Era.
  auto* standard = New<IStandardObject>(CLSID_StandardObject, IID_IStandardObject);
  DATE date = 0;
  standard->CTDATE(_bstr_t(L"31/1/2567"), VARIANT_FALSE, &date);
  standard->AddMonth(&date, 1, &date);
  standard->FormatQuery(date, text.GetAddress());
  Print(text);

  wchar_t file[MAX_PATH];
  GetFullPathNameW(L"settings.ini", MAX_PATH, file, nullptr);
  auto* settings = New<IASCIIObject>(CLSID_ASCIIObject, IID_IASCIIObject);
  settings->Setvalue(_bstr_t(file), _bstr_t(L"Port"), _bstr_t(L"9600"));
  settings->GetValue(_bstr_t(file), _bstr_t(L"Port"), text.GetAddress());
  Print(text);
  settings->Release();

  auto* grid = New<IGridValueObject>(CLSID_GridValueObject, IID_IGridValueObject);
  IConnectionPointContainer* container = nullptr;
  IConnectionPoint* point = nullptr;
  CellPrinter printer;
  DWORD cookie = 0;
  VARIANT_BOOL stored = VARIANT_FALSE;
  grid->QueryInterface(IID_IConnectionPointContainer, reinterpret_cast<void**>(&container));
  container->FindConnectionPoint(DIID_DGridValueObjectEvents, &point);
  point->Advise(&printer, &cookie);
  grid->SetCols(3);
  grid->Setvalue(7, 2, 12.5, &stored);
  point->Unadvise(cookie);
  point->Release();
  container->Release();
  grid->Release();

  const HRESULT result = standard->CTDATE(_bstr_t(L"31/2/2567"), VARIANT_FALSE, &date);
  std::printf("error %lu\n", static_cast<unsigned long>(result) & 0xFFFF);
  standard->Release();
}

}  // namespace

int wmain() {
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  Run();
  CoUninitialize();
  return 0;
}
