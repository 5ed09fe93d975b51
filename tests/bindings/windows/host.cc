// Calls the automation server from C++, late and early bound, and says what is wrong.
#include "expect.h"
//
#include <initguid.h>

#include "zq7standard_server.h"
//
#include <functional>
#include <thread>

using namespace ZQ7Windows;

namespace {

template <typename Interface>
ComPtr<Interface> New(REFCLSID class_id, REFIID id) {
  ComPtr<Interface> made;
  ExpectDone(CoCreateInstance(class_id, nullptr, CLSCTX_INPROC_SERVER, id, made.OutVoid()),
             "CoCreateInstance");
  return made;
}

ComPtr<IStandardObject> NewStandard() {
  return New<IStandardObject>(CLSID_StandardObject, IID_IStandardObject);
}

ComPtr<IGridValueObject> NewGrid() {
  return New<IGridValueObject>(CLSID_GridValueObject, IID_IGridValueObject);
}

/// The text of the error that the last call of an interface left.
std::wstring ErrorText() {
  ComPtr<IErrorInfo> info;
  Bstr text;
  if (GetErrorInfo(0, info.Out()) != S_OK) return L"none";
  info->GetDescription(text.Out());
  return std::wstring(text.View());
}

constexpr double kLeapDay = 45351;  // 2024-02-29

void TypedCalls() {
  const auto standard = NewStandard();
  DATE day = 45322;  // 2024-01-31
  short months = 1;
  DATE later = 0;
  ExpectDone(standard->AddMonth(&day, months, &later), "AddMonth");
  ExpectSame(kLeapDay, later, "a date by reference");
  DATE both = day;
  ExpectDone(standard->AddMonth(&both, months, &both), "AddMonth");
  ExpectSame(kLeapDay, both, "a result in the place of the argument");
  ExpectSame(E_POINTER, standard->AddMonth(&day, months, nullptr), "no place for the result");
  ExpectSame(static_cast<HRESULT>(0x800A0005), standard->AddMonth(nullptr, months, &later),
             "a reference that is null");

  Bstr text;
  const Bstr format(L"d mmmm bbbb");
  ExpectDone(standard->FormatThai(day, format.get(), text.Out()), "FormatThai");
  ExpectSame(std::wstring_view(L"31 \u0E21\u0E01\u0E23\u0E32\u0E04\u0E21 2567"), text.View(),
             "a Thai text");
  double fixed = 0;
  ExpectDone(standard->FixNumberWithCutMode(12.345, 2, ZQ7FixUnitAllUp, &fixed), "enumeration");
  ExpectSame(13.0, fixed, "an enumeration");

  CURRENCY amount = {};
  CURRENCY rounded = {};
  amount.int64 = 122500;
  ExpectDone(standard->FixMoneyDecimal(amount, VARIANT_TRUE, nullptr, &rounded), "currency");
  ExpectSame(130000LL, static_cast<long long>(rounded.int64), "an amount, and a null text");

  SAFEARRAY* names = nullptr;
  ExpectDone(standard->GETDayTextArray(VARIANT_FALSE, VARIANT_FALSE, &names), "list");
  VARTYPE type = VT_EMPTY;
  SafeArrayGetVartype(names, &type);
  ExpectSame(VT_BSTR, type, "a list for a typed host");
  SafeArrayDestroy(names);

  double number = -1;
  VARIANT null;
  null.vt = VT_NULL;
  ExpectDone(standard->Null2Zero(null, &number), "Null2Zero");
  ExpectSame(0.0, number, "a null through a VARIANT");
  ExpectDone(standard->Null2Zero(Of(1.5), &number), "Null2Zero of a number");
  ExpectSame(1.5, number, "a number through a VARIANT");
}

void TypedErrors() {
  const auto standard = NewStandard();
  const Bstr text(L"31/2/2024");
  VARIANT_BOOL flag = VARIANT_FALSE;
  DATE date = 0;
  ExpectSame(static_cast<HRESULT>(0x800A000D), standard->CTDATE(text.get(), flag, &date),
             "error 13 as a code");
  ExpectSame(std::wstring(L"StandardObject.CTDATE: type mismatch (error 13): iText: "
                          L"\"31/2/2024\""),
             ErrorText(), "its text");
  const auto support = Query<ISupportErrorInfo>(standard.get(), IID_ISupportErrorInfo);
  ExpectSame(S_OK, support->InterfaceSupportsErrorInfo(IID_IStandardObject), "error information");
  ExpectSame(S_FALSE, support->InterfaceSupportsErrorInfo(IID_IGridValueObject), "of another");
  Bstr shown;
  ExpectSame(static_cast<HRESULT>(0x800A0006), standard->FormatQuery(1e9, shown.Out()),
             "a date out of range");
}

/// A value by reference, of each type that a host may hold, comes through and is as it was.
void References() {
  const auto standard = NewStandard();
  DATE day = 45322;
  short months = 1;
  long wide_months = 1;
  VARIANT day_value = Of(day, VT_DATE);
  VARIANT nested = ReferenceTo(VT_DATE, &day);
  VARIANT text_value;
  const Bstr one(L"1");
  text_value = Of(one);
  const struct {
    const char* what;
    VARIANT day;
    VARIANT months;
  } rows[] = {
      {"typed", ReferenceTo(VT_DATE, &day), ReferenceTo(VT_I2, &months)},
      {"of another type", ReferenceTo(VT_R8, &day), ReferenceTo(VT_I4, &wide_months)},
      {"to a VARIANT", ReferenceTo(VT_VARIANT, &day_value), ReferenceTo(VT_VARIANT, &text_value)},
      {"to a reference", ReferenceTo(VT_VARIANT, &nested), ReferenceTo(VT_I2, &months)},
  };
  for (const auto& [what, given_day, given_months] : rows) {
    const Late call(standard.get(), L"AddMonth", {given_day, given_months});
    ExpectSame(VT_DATE, call.Value().vt, std::string("type of the result, ") + what);
    ExpectSame(kLeapDay, call.Value().date, std::string("by reference, ") + what);
  }
  ExpectSame(45322.0, day, "the variable is as it was");
  ExpectSame(VT_BSTR, text_value.vt, "and of its type");
}

void LateCalls() {
  const auto standard = NewStandard();
  const Bstr list(L"a;b");
  const Bstr item(L"c");
  const Bstr comma(L",");
  ExpectSame(std::wstring(L"a;b;c"), Late(standard.get(), L"addlist", {Of(list), Of(item)}).Text(),
             "a name in any case");
  ExpectSame(std::wstring(L"a,b,c"),
             Late(standard.get(), L"AddList", {Of(list), Of(comma), Of(item)}, DISPATCH_METHOD,
                  {L"SeparateChar", L"iAdd"})
                 .Text(),
             "arguments by name");
  ExpectSame(std::wstring(L"a;b;c"),
             Late(standard.get(), L"AddList", {Of(list), Of(item), LeftOut()}).Text(), "left out");

  const Late words(standard.get(), L"GETDayTextArray", {Of(false), Of(false)});
  ExpectSame(VT_ARRAY | VT_VARIANT, static_cast<int>(words.Value().vt), "a list for a script");
  const auto grid = NewGrid();
  const Late rows(grid.get(), L"Rows", {}, DISPATCH_PROPERTYGET);
  ExpectSame(1L, rows.Value().lVal, "a property");
  ExpectSame(DISP_E_MEMBERNOTFOUND, Late(grid.get(), L"Clear", {}, DISPATCH_PROPERTYGET).Result(),
             "an operation is no property");
  const auto settings = New<IASCIIObject>(CLSID_ASCIIObject, IID_IASCIIObject);
  ExpectDone(Late(settings.get(), L"DisableMsgLevel", {Of(1L)}, DISPATCH_PROPERTYPUT).Result(),
             "a property set");
  short level = 0;
  settings->get_DisableMsgLevel(&level);
  ExpectSame(1, level, "what both kinds of hosts see");
}

void DefaultProperties() {
  const auto grid = NewGrid();
  ExpectDone(grid->SetCols(3), "SetCols");
  constexpr WORD kGet = DISPATCH_METHOD | DISPATCH_PROPERTYGET;
  ExpectDone(
      Late(grid.get(), DISPID{DISPID_VALUE}, {Of(7L), Of(2L), Of(12.5)}, DISPATCH_PROPERTYPUT)
          .Result(),
      "a cell set");
  ExpectSame(12.5, Late(grid.get(), DISPID{DISPID_VALUE}, {Of(7L), Of(2L)}, kGet).Value().dblVal,
             "a cell");
  const auto standard = NewStandard();
  ExpectSame(DISP_E_MEMBERNOTFOUND, Late(standard.get(), DISPID{DISPID_VALUE}, {}, kGet).Result(),
             "a class without a default");
  ExpectSame(13U, Late(standard.get(), L"StrVal", {Of(grid.get())}).Error(),
             "an object without a value");
}

void LateErrors() {
  const auto standard = NewStandard();
  const Bstr bad(L"31/2/2024");
  const auto date = Of(bad);
  const struct {
    const char* what;
    unsigned error;
    UINT wrong;
    const wchar_t* name;
    std::vector<VARIANT> arguments;
    std::vector<const wchar_t*> named;
  } rows[] = {
      {"raised by the operation", 13, 0, L"CTDATE", {date}, {}},
      {"wrong type, first of two", 13, 1, L"AddMonth", {date, Of(1L)}, {}},
      {"wrong type, second of two", 13, 0, L"AddMonth", {Of(1L), date}, {}},
      {"wrong type, by name", 13, 0, L"AddMonth", {Of(1L), date}, {L"NumberOfMonth"}},
      {"does not fit", 6, 0, L"AddMonth", {Of(1L), Of(70000L)}, {}},
      {"date out of range", 6, 0, L"FormatQuery", {Of(1e9, VT_DATE)}, {}},
      {"too many", 450, 99, L"FormatQuery", {Of(1L), Of(1L)}, {}},
      {"too few", 449, 99, L"FormatQuery", {}, {}},
      {"an object in place of a text", 13, 0, L"StrVal", {Of(standard.get())}, {}},
      {"nothing in place of a text", 13, 0, L"StrVal", {Of(static_cast<IDispatch*>(nullptr))}, {}},
  };
  for (const auto& row : rows) {
    const Late call(standard.get(), row.name, row.arguments, DISPATCH_METHOD, row.named);
    ExpectSame(row.error, call.Error(), row.what);
    ExpectSame(row.wrong, call.WrongArgument(), std::string("argument of: ") + row.what);
    ExpectSame(std::wstring_view(L"ZQ7Standard.StandardObject"), call.Source(), row.what);
    Expect(call.Description().starts_with(L"StandardObject."), row.what);
  }
  ExpectSame(DISP_E_UNKNOWNNAME, Late(standard.get(), L"NoSuch", {}).Result(), "unknown member");
  ExpectSame(DISP_E_UNKNOWNNAME,
             Late(standard.get(), L"CTDATE", {date}, DISPATCH_METHOD, {L"nothing"}).Result(),
             "unknown parameter");
}

/// Hears the events of a grid.
class Listener final : public IDispatch {
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
  STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* given, VARIANT*, EXCEPINFO* info,
                      UINT*) override {
    const bool cell = id == 16 && given->cArgs == 2 && given->rgvarg[0].vt == (VT_BYREF | VT_I4) &&
                      given->rgvarg[1].vt == (VT_BYREF | VT_I4);
    if (!cell) return DISP_E_MEMBERNOTFOUND;
    row = *given->rgvarg[1].plVal;
    column = *given->rgvarg[0].plVal;
    *given->rgvarg[1].plVal = -1;
    ++calls;
    if (act) act();
    if (error == 0) return S_OK;
    info->scode = error;
    info->bstrDescription = SysAllocString(L"the listener's own");
    return DISP_E_EXCEPTION;
  }

  int calls = 0;
  long row = -1;
  long column = -1;
  HRESULT error = 0;
  std::function<void()> act;
};

ComPtr<IConnectionPoint> PointOf(IUnknown* grid) {
  GUID events = {};
  Query<IProvideClassInfo2>(grid, IID_IProvideClassInfo2)
      ->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events);
  ExpectSame(true, events == DIID_DGridValueObjectEvents, "the default events");
  ComPtr<IConnectionPoint> point;
  ExpectDone(Query<IConnectionPointContainer>(grid, IID_IConnectionPointContainer)
                 ->FindConnectionPoint(events, point.Out()),
             "FindConnectionPoint");
  return point;
}

void Events() {
  auto grid = NewGrid();
  grid->SetCols(3);
  const auto point = PointOf(grid.get());
  Listener first;
  Listener second;
  DWORD first_cookie = 0;
  DWORD second_cookie = 0;
  ExpectDone(point->Advise(&first, &first_cookie), "Advise");
  ExpectDone(point->Advise(&second, &second_cookie), "Advise");
  VARIANT_BOOL set = VARIANT_FALSE;
  ExpectDone(grid->Setvalue(7, 2, 12.5, &set), "Setvalue");
  ExpectSame(7L, second.row, "row, whatever the first listener did to it");
  ExpectSame(2L, second.column, "column");

  ComPtr<IEnumConnections> connections;
  ExpectDone(point->EnumConnections(connections.Out()), "EnumConnections");
  CONNECTDATA found[3] = {};
  ULONG count = 0;
  ExpectSame(S_FALSE, connections->Next(3, found, &count), "fewer than asked for");
  ExpectSame(2UL, count, "connections");
  ExpectSame(second_cookie, found[1].dwCookie, "a connection's number");

  first.act = [&] { point->Unadvise(second_cookie); };
  first.error = static_cast<HRESULT>(0x800A0009);
  ExpectSame(first.error, grid->Setvalue(1, 1, 1, &set), "what a listener raises");
  Expect(ErrorText().find(L"the listener's own") != std::wstring::npos, "its text");
  ExpectSame(1, second.calls, "a listener that was disconnected meanwhile");
  ExpectDone(point->Unadvise(first_cookie), "Unadvise");
  ExpectSame(CONNECT_E_NOCONNECTION, point->Unadvise(first_cookie), "Unadvise again");
  ExpectDone(grid->Setvalue(1, 1, 1, &set), "without listeners");
  ExpectSame(2, first.calls, "calls");

  // The last reference goes while the operation runs.
  const auto other = NewGrid();
  auto* raw = ComPtr<IGridValueObject>(other).release();
  raw->SetCols(1);
  first.act = [&] { raw->Release(); };
  first.error = 0;
  DWORD cookie = 0;
  PointOf(raw)->Advise(&first, &cookie);
  ExpectDone(raw->Setvalue(0, 0, 1, &set), "released by a listener");
}

void Descriptions() {
  ComPtr<ITypeInfo> info;
  TYPEATTR* attributes = nullptr;
  const auto grid = NewGrid();
  ExpectDone(grid->GetTypeInfo(0, LOCALE_USER_DEFAULT, info.Out()), "GetTypeInfo");
  ExpectDone(info->GetTypeAttr(&attributes), "GetTypeAttr");
  ExpectSame(true, attributes->guid == IID_IGridValueObject || attributes->cFuncs > 0,
             "the interface's description");
  info->ReleaseTypeAttr(attributes);
  ComPtr<ITypeInfo> class_info;
  ExpectDone(
      Query<IProvideClassInfo>(grid.get(), IID_IProvideClassInfo)->GetClassInfo(class_info.Out()),
      "GetClassInfo");
  ExpectDone(class_info->GetTypeAttr(&attributes), "GetTypeAttr of a class");
  ExpectSame(TKIND_COCLASS, attributes->typekind, "the class's description");
  ExpectSame(2, static_cast<int>(attributes->cImplTypes), "its interface and its events");
  class_info->ReleaseTypeAttr(attributes);
}

/// A bitmap of the system as a picture, and a control that holds one.
ComPtr<IDispatch> NewPicture() {
  PICTDESC description = {};
  description.cbSizeofstruct = sizeof description;
  description.picType = PICTYPE_BITMAP;
  const HDC screen = GetDC(nullptr);
  description.bmp.hbitmap = CreateCompatibleBitmap(screen, 40, 20);
  ReleaseDC(nullptr, screen);
  ComPtr<IDispatch> picture;
  ExpectDone(OleCreatePictureIndirect(&description, IID_IDispatch, TRUE, picture.OutVoid()),
             "OleCreatePictureIndirect");
  return picture;
}

void Pictures() {
  const auto standard = NewStandard();
  const auto picture = NewPicture();
  const Bstr file(L"C:\\picture.jpg");
  const Late saved(standard.get(), L"SavePictureAsJPEG", {Of(picture.get()), Of(file)});
  ExpectDone(saved.Result(), "SavePictureAsJPEG");
  const auto image = New<ICImageInfo>(CLSID_CImageInfo, IID_ICImageInfo);
  ExpectDone(Late(image.get(), L"ReadImageInfo", {Of(file)}).Result(), "ReadImageInfo");
  ExpectSame(40L, Late(image.get(), L"Width", {}, DISPATCH_PROPERTYGET).Value().lVal, "width");
  Late missing(standard.get(), L"SavePictureAsJPEG", {Of(standard.get()), Of(file)});
  ExpectSame(13U, missing.Error(), "an object of the server that is no picture");
}

/// Serves this thread's apartment until `work` has ended on another one.
void WhileServing(const std::function<void()>& work) {
  const DWORD main = GetCurrentThreadId();
  std::thread worker([&] {
    work();
    PostThreadMessageW(main, WM_APP, 0, 0);
  });
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0 && message.message != WM_APP) {
    DispatchMessageW(&message);
  }
  worker.join();
}

void Marshalling() {
  const auto standard = NewStandard();
  for (const DWORD kind : {DWORD{COINIT_APARTMENTTHREADED}, DWORD{COINIT_MULTITHREADED}}) {
    IStream* stream = nullptr;
    ExpectDone(CoMarshalInterThreadInterfaceInStream(IID_IStandardObject, standard.get(), &stream),
               "marshal");
    WhileServing([&] {
      ExpectDone(CoInitializeEx(nullptr, kind), "CoInitializeEx");
      ComPtr<IStandardObject> proxy;
      ExpectDone(CoGetInterfaceAndReleaseStream(stream, IID_IStandardObject, proxy.OutVoid()),
                 "unmarshal");
      if (proxy) {
        Expect(proxy.get() != standard.get(), "a proxy");
        DATE day = 45322;
        short months = 1;
        DATE later = 0;
        ExpectDone(proxy->AddMonth(&day, months, &later), "a typed call");
        ExpectSame(kLeapDay, later, "a typed call through a proxy");
        const Bstr text(L"31/2/2024");
        VARIANT_BOOL flag = VARIANT_FALSE;
        ExpectSame(static_cast<HRESULT>(0x800A000D), proxy->CTDATE(text.get(), flag, &later),
                   "an error through a proxy");
        const Late late(proxy.get(), L"FormatQuery", {Of(kLeapDay, VT_DATE)});
        ExpectSame(std::wstring(L"2024-02-29"), late.Text(), "a late call through a proxy");
      }
      proxy = {};
      CoUninitialize();
    });
  }
  std::thread([] {
    CoInitializeEx(nullptr, COINIT_MULTITHREADED);
    double down = 0;
    ExpectDone(NewStandard()->Floor(2.5, &down), "made in the multithreaded apartment");
    CoUninitialize();
  }).join();
  auto moved = NewGrid();
  std::thread([&] { moved = {}; }).join();
}

/// The lowest handle that is free, and the working set.
struct Usage {
  UINT_PTR next_handle;
  SIZE_T working_set;
};
Usage Measure();

void ManyObjects() {
  ComPtr<IClassFactory> factory;
  ExpectDone(CoGetClassObject(CLSID_StandardObject, CLSCTX_INPROC_SERVER, nullptr,
                              IID_IClassFactory, factory.OutVoid()),
             "CoGetClassObject");
  const auto make = [&](int count) {
    for (int i = 0; i < count; ++i) {
      ComPtr<IStandardObject> made;
      factory->CreateInstance(nullptr, IID_IStandardObject, made.OutVoid());
      if (!made) return Expect(false, "CreateInstance");
    }
  };
  make(10000);
  const Usage before = Measure();
  make(100000);
  const Usage after = Measure();
  std::printf("100000 objects: next handle %u and %u, working set %u and %u KiB\n",
              static_cast<unsigned>(before.next_handle), static_cast<unsigned>(after.next_handle),
              static_cast<unsigned>(before.working_set / 1024),
              static_cast<unsigned>(after.working_set / 1024));
  ExpectSame(before.next_handle, after.next_handle, "handles");
  // One page more would be 1 object in 20.
  Expect(after.working_set <= before.working_set + 64 * 1024, "working set");
  ComPtr<IUnknown> none;
  ExpectSame(CLASS_E_NOAGGREGATION,
             factory->CreateInstance(factory.get(), IID_IUnknown, none.OutVoid()), "aggregation");
}

/// Before `Marshalling`: Wine 8 keeps a reference to each class factory that a multithreaded
/// apartment asked for.
void Unloading() {
  using CanUnload = HRESULT(STDAPICALLTYPE*)();
  const HMODULE module = GetModuleHandleW(L"zq7standard.dll");
  Expect(module != nullptr, "the DLL is loaded");
  const auto can_unload = reinterpret_cast<CanUnload>(
      reinterpret_cast<void*>(GetProcAddress(module, "DllCanUnloadNow")));
  {
    const auto grid = NewGrid();
    ExpectSame(S_FALSE, can_unload(), "in use by an object");
  }
  {
    const auto container =
        Query<IConnectionPointContainer>(NewGrid().get(), IID_IConnectionPointContainer);
    ExpectSame(S_FALSE, can_unload(), "in use by another interface of it");
    ComPtr<IEnumConnectionPoints> points;
    container->EnumConnectionPoints(points.Out());
    ComPtr<IConnectionPoint> point;
    ExpectSame(S_OK, points->Next(1, point.Out(), nullptr), "connection points");
  }
  ExpectSame(S_OK, can_unload(), "no longer in use");
  CoFreeUnusedLibrariesEx(0, 0);
  CoFreeUnusedLibrariesEx(0, 0);
  Expect(GetModuleHandleW(L"zq7standard.dll") == nullptr, "unloaded");
  ExpectDone(NewGrid()->SetCols(2), "loaded again");
}

}  // namespace

#include <psapi.h>

namespace {

Usage Measure() {
  PROCESS_MEMORY_COUNTERS counters = {};
  GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
  const HANDLE next = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  CloseHandle(next);
  return {reinterpret_cast<UINT_PTR>(next), counters.WorkingSetSize};
}

}  // namespace

int wmain() {
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  for (const auto test :
       {TypedCalls, TypedErrors, References, LateCalls, DefaultProperties, LateErrors, Pictures,
        Events, Descriptions, ManyObjects, Unloading, Marshalling}) {
    test();
  }
  CoUninitialize();
  std::printf(failures == 0 ? "host: passed\n" : "host: %d failures\n", failures);
  return failures == 0 ? 0 : 1;
}
