#include "events.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "enumerator.h"
#include "failures.h"
#include "values.h"

namespace ZQ7Windows {

using namespace ZQ7Standard::Automation;

namespace {

struct ConnectionsKind {
  using Interface = IEnumConnections;
  using Item = Connection;
  using Given = CONNECTDATA;
  static REFIID Id() { return IID_IEnumConnections; }
  static Given Give(const Item& item) {
    return {ComPtr<IDispatch>(item.listener).release(), item.cookie};
  }
};

struct PointsKind {
  using Interface = IEnumConnectionPoints;
  using Item = ComPtr<IConnectionPoint>;
  using Given = IConnectionPoint*;
  static REFIID Id() { return IID_IEnumConnectionPoints; }
  static Given Give(const Item& item) { return Item(item).release(); }
};

/// The arguments of an event, from the last to the first. Those passed by reference are references
/// to copies, which each listener may change.
class EventArguments {
 public:
  EventArguments(const EventInfo& event, std::span<const Value> values)
      : values_(values.size()), given_(values.size()) {
    for (std::size_t i = 0; i < values.size(); ++i) {
      const ParameterInfo& parameter = event.parameters[i];
      const std::size_t place = values.size() - 1 - i;
      FromValue(values[i], parameter.type.type, values_[place]);
      given_[place] = values_[place];
      if (!parameter.by_reference) continue;
      given_[place].vt |= VT_BYREF;
      // Every member of the union begins where the numbers do.
      given_[place].byref = &values_[place].lVal;
    }
  }

  DISPPARAMS Get() { return {given_.data(), nullptr, static_cast<UINT>(given_.size()), 0}; }

 private:
  std::vector<Variant> values_;
  std::vector<VARIANT> given_;  // own nothing
};

/// What a listener raises reaches the caller of the operation. Other failures do not: many listeners
/// answer only the events that they know, and one may be gone.
void Tell(IDispatch& listener, const EventInfo& event, std::span<const Value> values) {
  EventArguments arguments(event, values);
  DISPPARAMS given = arguments.Get();
  ExceptionInfo info;
  const HRESULT result = listener.Invoke(event.number, IID_NULL, LOCALE_USER_DEFAULT,
                                         DISPATCH_METHOD, &given, nullptr, &info, nullptr);
  if (result == DISP_E_EXCEPTION) RaiseHostFailure(result, info, event.name);
}

}  // namespace

class EventPoint::Sink final : public EventSink {
 public:
  explicit Sink(const EventPoint& point) : point_(point) {}

  void Raise(const EventInfo& event, std::span<const Value> arguments) override {
    // A listener may disconnect itself and others.
    const std::vector<Connection> connections = point_.connections_;
    for (const Connection& connection : connections) {
      const bool connected = std::ranges::find(point_.connections_, connection.cookie,
                                               &Connection::cookie) != point_.connections_.end();
      if (connected) Tell(*connection.listener.get(), event, arguments);
    }
  }

 private:
  const EventPoint& point_;
};

EventPoint::EventPoint(IConnectionPointContainer& owner, Object object, const IID& events)
    : owner_(owner), object_(std::move(object)), events_(events) {}

EventPoint::~EventPoint() = default;

STDMETHODIMP EventPoint::QueryInterface(REFIID id, void** found) {
  if (found == nullptr) return E_POINTER;
  const bool known = id == IID_IUnknown || id == IID_IConnectionPoint;
  *found = known ? this : nullptr;
  if (known) AddRef();
  return known ? S_OK : E_NOINTERFACE;
}

STDMETHODIMP_(ULONG) EventPoint::AddRef() {
  return owner_.AddRef();
}

STDMETHODIMP_(ULONG) EventPoint::Release() {
  return owner_.Release();
}

STDMETHODIMP EventPoint::GetConnectionInterface(IID* id) {
  if (id == nullptr) return E_POINTER;
  *id = events_;
  return S_OK;
}

STDMETHODIMP EventPoint::GetConnectionPointContainer(IConnectionPointContainer** owner) {
  if (owner == nullptr) return E_POINTER;
  owner_.AddRef();
  *owner = &owner_;
  return S_OK;
}

STDMETHODIMP EventPoint::Advise(IUnknown* listener, DWORD* cookie) {
  if (listener == nullptr || cookie == nullptr) return E_POINTER;
  auto found = Query<IDispatch>(listener, events_);
  if (!found) found = Query<IDispatch>(listener, IID_IDispatch);
  if (!found) return CONNECT_E_CANNOTCONNECT;
  if (subscription_ == nullptr) {
    subscription_ = Subscribe(object_, std::make_shared<Sink>(*this));
  }
  *cookie = ++last_cookie_;
  connections_.push_back({*cookie, std::move(found)});
  return S_OK;
}

STDMETHODIMP EventPoint::Unadvise(DWORD cookie) {
  const auto found = std::ranges::find(connections_, cookie, &Connection::cookie);
  if (found == connections_.end()) return CONNECT_E_NOCONNECTION;
  // The listener may call back when it is released, so it goes when the list is done.
  const Connection gone = std::move(*found);
  connections_.erase(found);
  if (connections_.empty()) subscription_.reset();
  return S_OK;
}

STDMETHODIMP EventPoint::EnumConnections(IEnumConnections** connections) {
  if (connections == nullptr) return E_POINTER;
  *connections = new Enumerator<ConnectionsKind>(connections_);
  return S_OK;
}

IEnumConnectionPoints* NewPoints(IConnectionPoint* point) {
  std::vector<ComPtr<IConnectionPoint>> points;
  if (point != nullptr) points.push_back(ComPtr<IConnectionPoint>::Share(point));
  return new Enumerator<PointsKind>(std::move(points));
}

}  // namespace ZQ7Windows
