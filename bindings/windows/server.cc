#include "server.h"

#include "failures.h"

namespace ZQ7Windows {

using namespace ZQ7Standard::Automation;

ServerBase::ServerBase(const ServerRow& row, const Members& members)
    : row_(row), members_(members), object_(Create(row.name)) {}

ServerBase::~ServerBase() = default;

HRESULT ServerBase::Report(DISPID id) const noexcept {
  try {
    const auto [operation, property] = members_.At(id);
    const Failure failure =
        operation != nullptr
            ? CaughtFailure(members_.Owner(), operation->name, operation->parameters)
            : CaughtFailure(members_.Owner(), property->name, {});
    return SetFailure(failure, *row_.interface_id);
  } catch (...) {
    return E_OUTOFMEMORY;  // for the report itself
  }
}

STDMETHODIMP ServerBase::InterfaceSupportsErrorInfo(REFIID id) {
  return IsInterfaceId(id) ? S_OK : S_FALSE;
}

STDMETHODIMP ServerBase::GetClassInfo(ITypeInfo** found) {
  return found == nullptr ? E_POINTER : FindTypeInfo(*row_.id, found);
}

STDMETHODIMP ServerBase::GetGUID(DWORD kind, GUID* found) {
  if (found == nullptr) return E_POINTER;
  if (kind != GUIDKIND_DEFAULT_SOURCE_DISP_IID || row_.events == nullptr) return E_INVALIDARG;
  *found = *row_.events;
  return S_OK;
}

STDMETHODIMP ServerBase::EnumConnectionPoints(IEnumConnectionPoints** points) {
  if (points == nullptr) return E_POINTER;
  *points = NewPoints(Point());
  return S_OK;
}

STDMETHODIMP ServerBase::FindConnectionPoint(REFIID id, IConnectionPoint** found) {
  if (found == nullptr) return E_POINTER;
  *found = nullptr;
  if (row_.events == nullptr || id != *row_.events) return CONNECT_E_NOCONNECTION;
  return Point()->QueryInterface(IID_IConnectionPoint, reinterpret_cast<void**>(found));
}

void* ServerBase::FindInterface(REFIID id) {
  if (id == IID_ISupportErrorInfo) return static_cast<ISupportErrorInfo*>(this);
  if (id == IID_IProvideClassInfo || id == IID_IProvideClassInfo2) {
    return static_cast<IProvideClassInfo2*>(this);
  }
  if (id == kOwnObjectId) return static_cast<IOwnObject*>(this);
  const bool container = id == IID_IConnectionPointContainer && row_.events != nullptr;
  return container ? static_cast<IConnectionPointContainer*>(this) : nullptr;
}

HRESULT ServerBase::TypeInfo(UINT index, ITypeInfo** found) const {
  if (found == nullptr) return E_POINTER;
  return index == 0 ? FindTypeInfo(*row_.interface_id, found) : DISP_E_BADINDEX;
}

HRESULT ServerBase::Names(LPOLESTR* names, UINT count, DISPID* ids) const noexcept {
  try {
    return FindNames(members_, names, count, ids);
  } catch (...) {
    return E_OUTOFMEMORY;
  }
}

HRESULT ServerBase::Invoked(const LateCall& call) const noexcept {
  try {
    return InvokeLate(members_, object_, call);
  } catch (...) {
    return E_OUTOFMEMORY;  // for the report of a failure
  }
}

EventPoint* ServerBase::Point() {
  if (point_ == nullptr && row_.events != nullptr) {
    point_ = std::make_unique<EventPoint>(*this, object_, *row_.events);
  }
  return point_.get();
}

}  // namespace ZQ7Windows
