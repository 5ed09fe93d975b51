#ifndef ZQ7STANDARD_BINDINGS_WINDOWS_SERVER_H_
#define ZQ7STANDARD_BINDINGS_WINDOWS_SERVER_H_

#include <ZQ7Standard/automation/invoke.h>

#include <atomic>
#include <memory>
#include <string_view>

#include "automation/instance.h"
#include "com.h"
#include "events.h"
#include "late_binding.h"
#include "module.h"
#include "own_object.h"

/// The objects that hosts hold.
namespace ZQ7Windows {

class ServerBase;

/// A class that hosts can create.
struct ServerRow {
  std::string_view name;
  const CLSID* id;
  const IID* interface_id;
  const IID* events;  ///< null if it has none
  /// Makes an object with one reference. Throws what making the library's object does.
  IUnknown* (*create)(const ServerRow& row);
};

/// What all such objects have, whatever their interface.
class ServerBase : public ISupportErrorInfo,
                   public IProvideClassInfo2,
                   public IConnectionPointContainer,
                   public IOwnObject {
 public:
  ServerBase(const ServerRow& row, const Members& members);
  ServerBase(const ServerBase&) = delete;
  ServerBase& operator=(const ServerBase&) = delete;

  const ZQ7Standard::Automation::Object& OwnObject() const override { return object_; }
  const Members& Catalogued() const { return members_; }
  /// Reports the exception that is being handled as that of the member with the number `id`.
  HRESULT Report(DISPID id) const noexcept;

  STDMETHODIMP InterfaceSupportsErrorInfo(REFIID id) override;

  STDMETHODIMP GetClassInfo(ITypeInfo** found) override;
  STDMETHODIMP GetGUID(DWORD kind, GUID* found) override;

  STDMETHODIMP EnumConnectionPoints(IEnumConnectionPoints** points) override;
  STDMETHODIMP FindConnectionPoint(REFIID id, IConnectionPoint** found) override;

 protected:
  ~ServerBase();

  void* Instance() const { return object_.Get().object.get(); }
  ULONG CountUp() { return ++references_; }
  ULONG CountDown() { return --references_; }
  /// A pointer to one of the interfaces here, without a reference; null for any other.
  void* FindInterface(REFIID id);
  bool IsInterfaceId(REFIID id) const { return id == *row_.interface_id; }

  HRESULT TypeInfo(UINT index, ITypeInfo** found) const;
  HRESULT Names(LPOLESTR* names, UINT count, DISPID* ids) const noexcept;
  HRESULT Invoked(const LateCall& call) const noexcept;

 private:
  EventPoint* Point();

  LiveMark live_;
  std::atomic<ULONG> references_ = 1;
  const ServerRow& row_;
  const Members& members_;
  ZQ7Standard::Automation::Object object_;
  std::unique_ptr<EventPoint> point_;  // made when it is asked for
};

/// An object of the class `Class` with its dual interface.
template <typename Interface, typename Class>
class Server : public Interface, public ServerBase {
 public:
  using ServerBase::ServerBase;
  using ClassType = Class;

  Class& Object() const { return *static_cast<Class*>(Instance()); }

  STDMETHODIMP QueryInterface(REFIID id, void** found) override {
    if (found == nullptr) return E_POINTER;
    const bool main = id == IID_IUnknown || id == IID_IDispatch || IsInterfaceId(id);
    *found = main ? static_cast<Interface*>(this) : FindInterface(id);
    if (*found == nullptr) return E_NOINTERFACE;
    CountUp();
    return S_OK;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return CountUp(); }
  STDMETHODIMP_(ULONG) Release() override {
    const ULONG left = CountDown();
    if (left == 0) delete this;
    return left;
  }

  STDMETHODIMP GetTypeInfoCount(UINT* count) override {
    if (count == nullptr) return E_POINTER;
    *count = 1;
    return S_OK;
  }
  STDMETHODIMP GetTypeInfo(UINT index, LCID /*language*/, ITypeInfo** found) override {
    return TypeInfo(index, found);
  }
  STDMETHODIMP GetIDsOfNames(REFIID /*reserved*/, LPOLESTR* names, UINT count, LCID /*language*/,
                             DISPID* ids) override {
    return Names(names, count, ids);
  }
  STDMETHODIMP Invoke(DISPID id, REFIID /*reserved*/, LCID /*language*/, WORD flags,
                      DISPPARAMS* given, VARIANT* result, EXCEPINFO* info,
                      UINT* wrong_argument) override {
    if (given == nullptr) return E_POINTER;
    // A listener may release what it listens to.
    const auto kept = ComPtr<Interface>::Share(this);
    return Invoked({id, flags, *given, result, info, wrong_argument});
  }

 protected:
  virtual ~Server() = default;
};

}  // namespace ZQ7Windows

#endif  // ZQ7STANDARD_BINDINGS_WINDOWS_SERVER_H_
