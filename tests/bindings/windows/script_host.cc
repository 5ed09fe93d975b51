// Runs a file of VBScript or JScript as the system's own script host does, with the events of
// objects, which Wine's lacks:
//
//     script_host ENGINE FILE
//
// The script has `WScript.Echo` and `WScript.CreateObject(PROGID, PREFIX)`; its function PREFIX_Event
// handles the event of that object.
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
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
    return DISP_E_UNKNOWNNAME;
  }

 protected:
  bool Knows(REFIID id) const override { return id == IID_IDispatch; }
};

/// Passes the events of an object to the script's functions.
class Handlers final : public Dispatched {
 public:
  Handlers(IActiveScript& engine, std::wstring prefix, IDispatch* object)
      : engine_(engine), prefix_(std::move(prefix)) {
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
    const std::wstring name = prefix_ + events_[id];
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
  std::wstring prefix_;
  std::map<DISPID, std::wstring> events_;
  ComPtr<IConnectionPoint> point_;
  DWORD cookie_ = 0;
};

ComPtr<IDispatch> Created(const wchar_t* prog_id) {
  CLSID id = {};
  ComPtr<IDispatch> object;
  ExpectDone(CLSIDFromProgID(prog_id, &id), "CLSIDFromProgID");
  ExpectDone(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, object.OutVoid()),
             "CoCreateInstance");
  return object;
}

/// What scripts know the host as.
class Script final : public Dispatched {
 public:
  explicit Script(IActiveScript& engine) : engine_(engine) {}

  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) override {
    *ids = std::wstring_view(names[0]) == L"Echo" ? 1 : 2;
    return S_OK;
  }
  STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* given, VARIANT* result, EXCEPINFO*,
                      UINT*) override {
    std::vector<Variant> words(given->cArgs);
    for (UINT i = 0; i < given->cArgs; ++i) {
      if (FAILED(VariantChangeType(&words[i], &given->rgvarg[given->cArgs - 1 - i], 0, VT_BSTR))) {
        return DISP_E_TYPEMISMATCH;
      }
    }
    if (id == 1 && words.size() == 1) return Print(words[0].bstrVal);
    if (id != 2 || words.size() != 2 || result == nullptr) return DISP_E_BADPARAMCOUNT;
    const auto object = Created(words[0].bstrVal);
    if (!object) return E_FAIL;
    handlers_.push_back(std::make_unique<Handlers>(engine_, words[1].bstrVal, object.get()));
    result->vt = VT_DISPATCH;
    result->pdispVal = ComPtr<IDispatch>(object).release();
    return S_OK;
  }

 private:
  static HRESULT Print(BSTR text) {
    std::string bytes(4 * SysStringLen(text), '\0');
    const int length =
        WideCharToMultiByte(CP_UTF8, 0, text, static_cast<int>(SysStringLen(text)), bytes.data(),
                            static_cast<int>(bytes.size()), nullptr, nullptr);
    std::printf("%.*s\n", length, bytes.c_str());
    return S_OK;
  }

  IActiveScript& engine_;
  std::vector<std::unique_ptr<Handlers>> handlers_;
};

constexpr std::wstring_view kScriptName = L"WScript";

class Site final : public Lasting<IActiveScriptSite> {
 public:
  explicit Site(IDispatch& script) : script_(script) {}

  STDMETHODIMP GetLCID(LCID*) override { return E_NOTIMPL; }
  STDMETHODIMP GetItemInfo(LPCOLESTR name, DWORD mask, IUnknown** object, ITypeInfo**) override {
    if (mask != SCRIPTINFO_IUNKNOWN || std::wstring_view(name) != kScriptName) {
      return TYPE_E_ELEMENTNOTFOUND;
    }
    *object = &script_;
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
  IDispatch& script_;
};

std::wstring FileText(const wchar_t* path) {
  std::ifstream file(path, std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(file), {}};
  return {bytes.begin(), bytes.end()};
}

int Run(const wchar_t* engine_name, const wchar_t* file) {
  CLSID engine_id = {};
  ComPtr<IActiveScript> engine;
  ExpectDone(CLSIDFromProgID(engine_name, &engine_id), "the engine");
  ExpectDone(CoCreateInstance(engine_id, nullptr, CLSCTX_INPROC_SERVER, IID_IActiveScript,
                              engine.OutVoid()),
             "the engine");
  if (!engine) return 1;
  const auto parse = Query<IActiveScriptParse>(engine.get(), __uuidof(IActiveScriptParse));
  Script script(*engine.get());
  Site site(script);
  ExpectDone(engine->SetScriptSite(&site), "SetScriptSite");
  ExpectDone(parse->InitNew(), "InitNew");
  engine->AddNamedItem(kScriptName.data(), SCRIPTITEM_ISVISIBLE);
  EXCEPINFO info = {};
  engine->SetScriptState(SCRIPTSTATE_STARTED);
  ExpectDone(parse->ParseScriptText(FileText(file).c_str(), nullptr, nullptr, nullptr, 0, 0,
                                    SCRIPTTEXT_ISVISIBLE, nullptr, &info),
             "the script");
  engine->Close();
  return failures == 0 ? 0 : 1;
}

}  // namespace
}  // namespace ZQ7Windows

int wmain(int count, wchar_t** words) {
  if (count != 3) return 2;
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  const int status = ZQ7Windows::Run(words[1], words[2]);
  CoUninitialize();
  return status;
}
