// Runs a file of VBScript or JScript whose functions get the events of objects:
//
//     script_host ENGINE FILE NAME PROGID...
//
// Each NAME is an object of the class PROGID; the script's function NAME_Event handles its event.
// `host.Echo` writes a line.
#include <activscp.h>

#include <fstream>
#include <iterator>
#include <map>
#include <memory>

#include "expect.h"

namespace ZQ7Windows {
namespace {

/// Counts references for nothing: what the engine uses lasts as long as the program.
template <typename Interface>
class Lasting : public Interface {
 public:
  STDMETHODIMP QueryInterface(REFIID id, void** found) override {
    const bool known = id == IID_IUnknown || Knows(id);
    *found = known ? this : nullptr;
    return known ? S_OK : E_NOINTERFACE;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return 2; }
  STDMETHODIMP_(ULONG) Release() override { return 1; }

 protected:
  virtual bool Knows(REFIID id) const = 0;
};

class Dispatched : public Lasting<IDispatch> {
 public:
  STDMETHODIMP GetTypeInfoCount(UINT* count) override {
    *count = 0;
    return S_OK;
  }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID* ids) override {
    *ids = 1;
    return S_OK;
  }

 protected:
  bool Knows(REFIID id) const override { return id == IID_IDispatch; }
};

class Echo final : public Dispatched {
 public:
  STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS* given, VARIANT*, EXCEPINFO*,
                      UINT*) override {
    Variant text;
    if (given->cArgs != 1 || FAILED(VariantChangeType(&text, &given->rgvarg[0], 0, VT_BSTR))) {
      return DISP_E_TYPEMISMATCH;
    }
    std::printf("%ls\n", text.bstrVal);
    return S_OK;
  }
};

/// Passes the events of an object to the script's functions.
class Handlers final : public Dispatched {
 public:
  Handlers(IActiveScript& engine, std::wstring name, IDispatch* object)
      : engine_(engine), name_(std::move(name)) {
    const auto classes = Query<IProvideClassInfo>(object, IID_IProvideClassInfo);
    ComPtr<ITypeInfo> info;
    if (classes && SUCCEEDED(classes->GetClassInfo(info.Out()))) FindEvents(*info.get());
    const auto container = Query<IConnectionPointContainer>(object, IID_IConnectionPointContainer);
    ComPtr<IEnumConnectionPoints> points;
    if (container && SUCCEEDED(container->EnumConnectionPoints(points.Out())) &&
        points->Next(1, point_.Out(), nullptr) == S_OK) {
      ExpectDone(point_->Advise(this, &cookie_), "Advise");
    }
  }
  ~Handlers() {
    if (point_) point_->Unadvise(cookie_);
  }

  STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* given, VARIANT* result,
                      EXCEPINFO* info, UINT* wrong) override {
    ComPtr<IDispatch> script;
    DISPID function = DISPID_UNKNOWN;
    const std::wstring name = name_ + L"_" + events_[id];
    auto* text = const_cast<wchar_t*>(name.c_str());
    if (FAILED(engine_.GetScriptDispatch(nullptr, script.Out())) ||
        FAILED(script->GetIDsOfNames(IID_NULL, &text, 1, LOCALE_USER_DEFAULT, &function))) {
      return DISP_E_MEMBERNOTFOUND;
    }
    // Wine's JScript reads no references to numbers.
    std::vector<Variant> values(given->cArgs);
    for (UINT i = 0; i < given->cArgs; ++i) VariantCopyInd(&values[i], &given->rgvarg[i]);
    std::vector<VARIANT> plain(values.begin(), values.end());
    DISPPARAMS call = {plain.data(), nullptr, given->cArgs, 0};
    return script->Invoke(function, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &call, result,
                          info, wrong);
  }

 private:
  /// Takes the names of the events from the default source interface of the class.
  void FindEvents(ITypeInfo& coclass) {
    for (UINT i = 0; i < 2; ++i) {
      INT flags = 0;
      HREFTYPE reference = 0;
      ComPtr<ITypeInfo> source;
      if (FAILED(coclass.GetImplTypeFlags(i, &flags)) || (flags & IMPLTYPEFLAG_FSOURCE) == 0 ||
          FAILED(coclass.GetRefTypeOfImplType(i, &reference)) ||
          FAILED(coclass.GetRefTypeInfo(reference, source.Out()))) {
        continue;
      }
      FUNCDESC* function = nullptr;
      for (UINT f = 0; SUCCEEDED(source->GetFuncDesc(f, &function)); ++f) {
        Bstr name;
        UINT count = 0;
        source->GetNames(function->memid, name.Out(), 1, &count);
        events_[function->memid] = std::wstring(name.View());
        source->ReleaseFuncDesc(function);
      }
    }
  }

  IActiveScript& engine_;
  std::wstring name_;
  std::map<DISPID, std::wstring> events_;
  ComPtr<IConnectionPoint> point_;
  DWORD cookie_ = 0;
};

class Site final : public Lasting<IActiveScriptSite> {
 public:
  void Add(const std::wstring& name, ComPtr<IDispatch> object) { items_[name] = std::move(object); }

  STDMETHODIMP GetLCID(LCID*) override { return E_NOTIMPL; }
  STDMETHODIMP GetItemInfo(LPCOLESTR name, DWORD mask, IUnknown** object, ITypeInfo**) override {
    const auto found = items_.find(name);
    if (found == items_.end() || mask != SCRIPTINFO_IUNKNOWN) return TYPE_E_ELEMENTNOTFOUND;
    *object = ComPtr<IDispatch>(found->second).release();
    return S_OK;
  }
  STDMETHODIMP GetDocVersionString(BSTR*) override { return E_NOTIMPL; }
  STDMETHODIMP OnScriptTerminate(const VARIANT*, const EXCEPINFO*) override { return S_OK; }
  STDMETHODIMP OnStateChange(SCRIPTSTATE) override { return S_OK; }
  STDMETHODIMP OnScriptError(IActiveScriptError* error) override {
    EXCEPINFO info = {};
    DWORD context = 0;
    ULONG line = 0;
    LONG column = 0;
    error->GetExceptionInfo(&info);
    error->GetSourcePosition(&context, &line, &column);
    std::printf("FAILED line %lu: %08lX %ls\n", line + 1, static_cast<unsigned long>(info.scode),
                info.bstrDescription != nullptr ? info.bstrDescription : L"");
    ++failures;
    return S_OK;
  }
  STDMETHODIMP OnEnterScript() override { return S_OK; }
  STDMETHODIMP OnLeaveScript() override { return S_OK; }

 protected:
  bool Knows(REFIID id) const override { return id == IID_IActiveScriptSite; }

 private:
  std::map<std::wstring, ComPtr<IDispatch>> items_;
};

ComPtr<IDispatch> Created(const wchar_t* prog_id) {
  CLSID id = {};
  ComPtr<IDispatch> object;
  ExpectDone(CLSIDFromProgID(prog_id, &id), "CLSIDFromProgID");
  ExpectDone(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, object.OutVoid()),
             "CoCreateInstance");
  return object;
}

std::wstring FileText(const wchar_t* path) {
  std::ifstream file(path, std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(file), {}};
  return {bytes.begin(), bytes.end()};
}

int Run(int count, wchar_t** words) {
  CLSID engine_id = {};
  ComPtr<IActiveScript> engine;
  ExpectDone(CLSIDFromProgID(words[1], &engine_id), "the engine");
  ExpectDone(CoCreateInstance(engine_id, nullptr, CLSCTX_INPROC_SERVER, IID_IActiveScript,
                              engine.OutVoid()),
             "the engine");
  if (!engine) return 1;
  const auto parse = Query<IActiveScriptParse>(engine.get(), __uuidof(IActiveScriptParse));
  Site site;
  Echo echo;
  ExpectDone(engine->SetScriptSite(&site), "SetScriptSite");
  ExpectDone(parse->InitNew(), "InitNew");
  site.Add(L"host", ComPtr<IDispatch>(&echo));
  engine->AddNamedItem(L"host", SCRIPTITEM_ISVISIBLE);
  std::vector<std::unique_ptr<Handlers>> handlers;
  for (int i = 3; i + 1 < count; i += 2) {
    const auto object = Created(words[i + 1]);
    if (!object) return 1;
    site.Add(words[i], object);
    engine->AddNamedItem(words[i], SCRIPTITEM_ISVISIBLE);
    handlers.push_back(std::make_unique<Handlers>(*engine.get(), words[i], object.get()));
  }
  EXCEPINFO info = {};
  engine->SetScriptState(SCRIPTSTATE_STARTED);
  ExpectDone(parse->ParseScriptText(FileText(words[2]).c_str(), nullptr, nullptr, nullptr, 0, 0,
                                    SCRIPTTEXT_ISVISIBLE, nullptr, &info),
             "the script");
  engine->Close();
  return failures == 0 ? 0 : 1;
}

}  // namespace
}  // namespace ZQ7Windows

int wmain(int count, wchar_t** words) {
  if (count < 5) return 2;
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  const int status = ZQ7Windows::Run(count, words);
  CoUninitialize();
  return status;
}
