#ifndef ZQ7STANDARD_BINDINGS_WINDOWS_EVENTS_H_
#define ZQ7STANDARD_BINDINGS_WINDOWS_EVENTS_H_

#include <ZQ7Standard/automation/invoke.h>

#include <memory>
#include <vector>

#include "com.h"

namespace ZQ7Windows {

/// A host's listener, and its number.
struct Connection {
  DWORD cookie;
  ComPtr<IDispatch> listener;
};

/// Where hosts connect listeners to the events of an object, which owns this and counts references
/// for both. The object tells the library's own events as long as there is a listener.
class EventPoint final : public IConnectionPoint {
 public:
  EventPoint(IConnectionPointContainer& owner, ZQ7Standard::Automation::Object object,
             const IID& events);
  ~EventPoint();

  STDMETHODIMP QueryInterface(REFIID id, void** found) override;
  STDMETHODIMP_(ULONG) AddRef() override;
  STDMETHODIMP_(ULONG) Release() override;

  STDMETHODIMP GetConnectionInterface(IID* id) override;
  STDMETHODIMP GetConnectionPointContainer(IConnectionPointContainer** owner) override;
  STDMETHODIMP Advise(IUnknown* listener, DWORD* cookie) override;
  STDMETHODIMP Unadvise(DWORD cookie) override;
  STDMETHODIMP EnumConnections(IEnumConnections** connections) override;

 private:
  class Sink;

  IConnectionPointContainer& owner_;
  ZQ7Standard::Automation::Object object_;
  const IID& events_;
  std::vector<Connection> connections_;
  DWORD last_cookie_ = 0;
  std::shared_ptr<void> subscription_;  // null without listeners
};

/// `IConnectionPointContainer::EnumConnectionPoints`; `point` may be null.
IEnumConnectionPoints* NewPoints(IConnectionPoint* point);

}  // namespace ZQ7Windows

#endif  // ZQ7STANDARD_BINDINGS_WINDOWS_EVENTS_H_
