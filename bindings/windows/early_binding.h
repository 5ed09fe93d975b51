#ifndef ZQ7STANDARD_BINDINGS_WINDOWS_EARLY_BINDING_H_
#define ZQ7STANDARD_BINDINGS_WINDOWS_EARLY_BINDING_H_

#include <array>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <tuple>
#include <type_traits>
#include <utility>

#include "automation/binding.h"
#include "dates/date_math.h"
#include "server.h"
#include "values.h"

/// Calls through the functions of an interface, which go to the members themselves. Only values
/// whose type is known at run time alone, and objects, go through the catalogue.
namespace ZQ7Windows {

template <typename T>
inline constexpr bool kIsCatalogued = std::same_as<T, VARIANT> || std::same_as<T, IDispatch*>;

/// An argument of `server`'s operation with the number `id`.
struct EarlyPlace {
  const ServerBase& server;
  DISPID id;
  std::size_t parameter;
};

/// Raises 5 for a reference that is null, and 6 for a date out of range.
[[noreturn]] void RaiseAt(const EarlyPlace& place, ZQ7Standard::Error error,
                          const ZQ7Standard::ErrorInput& input);

/// An argument as the member's parameter, of the type `T` without references.
template <typename T, typename Given>
T Taken(Given given, const EarlyPlace& place) {
  if constexpr (std::same_as<Given, BSTR>) {
    return ViewOf(given);
  } else if constexpr (std::is_pointer_v<Given>) {
    if (given == nullptr) {
      RaiseAt(place, ZQ7Standard::Error::kInvalidArgument, ZQ7Standard::TextView(u"a null"));
    }
    return Taken<T>(*given, place);
  } else if constexpr (std::same_as<T, ZQ7Standard::OleDate>) {
    if (!ZQ7Standard::IsInRange(given)) RaiseAt(place, ZQ7Standard::Error::kOverflow, given);
    return T(given);
  } else if constexpr (std::same_as<T, ZQ7Standard::Currency>) {
    return T::FromScaled(given.int64);
  } else if constexpr (std::same_as<T, bool>) {
    return given != VARIANT_FALSE;
  } else {
    return static_cast<T>(given);
  }
}

/// Gives a member's result to the host.
template <typename Result, typename Given>
void Give(Result& result, const Given& given) {
  if constexpr (std::same_as<Given, ZQ7Standard::Text>) {
    result = NewBstr(given);
  } else if constexpr (std::same_as<Given, ZQ7Standard::Automation::TextList>) {
    result = NewArray(given, VT_BSTR);
  } else if constexpr (std::same_as<Given, bool>) {
    result = given ? VARIANT_TRUE : VARIANT_FALSE;
  } else if constexpr (std::same_as<Given, ZQ7Standard::OleDate>) {
    result = given.Days();
  } else if constexpr (std::same_as<Given, ZQ7Standard::Currency>) {
    result.int64 = given.Scaled();
  } else {
    result = static_cast<Result>(given);
  }
}

/// An argument of any type as a value that still belongs to the host. A reference that is null was
/// left out.
inline VARIANT Borrowed(const VARIANT& given) {
  return given;
}
template <typename Given>
VARIANT Borrowed(const Given& given) {
  VARIANT value;
  if constexpr (std::same_as<Given, BSTR>) {
    value.vt = VT_BSTR;
    value.bstrVal = given;
  } else if constexpr (std::same_as<Given, IDispatch*>) {
    value.vt = VT_DISPATCH;
    value.pdispVal = given;
  } else if constexpr (std::is_pointer_v<Given>) {
    if (given != nullptr) return Borrowed(*given);
    value.vt = VT_ERROR;
    value.scode = DISP_E_PARAMNOTFOUND;
  } else if constexpr (std::same_as<Given, VARIANT_BOOL>) {
    // Integers of 16 bits are the same type and become numbers, as which True is -1.
    value.vt = VT_I2;
    value.iVal = given;
  } else if constexpr (std::floating_point<Given>) {
    value.vt = VT_R8;  // dates are day counts
    value.dblVal = given;
  } else {
    value.vt = VT_I4;
    value.lVal = static_cast<LONG>(given);
  }
  return value;
}

template <typename... Given>
ZQ7Standard::Automation::Value CallCatalogued(const ServerBase& server, DISPID id,
                                              const Given&... given) {
  const auto& operation = *server.Catalogued().At(id).operation;
  std::size_t place = 0;
  // Braces are evaluated from left to right.
  const std::array<ZQ7Standard::Automation::Value, sizeof...(Given)> values = {[&](VARIANT value) {
    const auto& parameter = operation.parameters[place++];
    return ToValue(value, parameter.type, {operation.name, parameter.name});
  }(Borrowed(given))...};
  return ZQ7Standard::Automation::Invoke(server.OwnObject(), operation, {values});
}

template <auto Member, typename Server, typename... Given>
ZQ7Standard::Automation::ResultOf<Member> CallMember(Server& server, DISPID id, Given... given) {
  using Parameters = ZQ7Standard::Automation::ParametersOf<Member>;
  return [&]<std::size_t... I>(std::index_sequence<I...>) {
    return std::invoke(Member, server.Object(),
                       Taken<std::tuple_element_t<I, Parameters>>(given, {server, id, I})...);
  }
  (std::index_sequence_for<Given...>{});
}

/// Calls a member without a result.
template <auto Member, typename Server, typename... Given>
HRESULT Call(Server& server, DISPID id, Given... given) noexcept {
  const auto kept = ComPtr<Server>::Share(&server);
  try {
    if constexpr ((kIsCatalogued<Given> || ...)) {
      CallCatalogued(server, id, given...);
    } else {
      CallMember<Member>(server, id, given...);
    }
    return S_OK;
  } catch (...) {
    return server.Report(id);
  }
}

template <auto Member, typename Server, typename Result, typename... Given>
HRESULT CallForResult(Server& server, DISPID id, Result* result, Given... given) noexcept {
  if (result == nullptr) return E_POINTER;
  const auto kept = ComPtr<Server>::Share(&server);
  try {
    if constexpr ((kIsCatalogued<Given> || ...)) {
      using Wanted = ZQ7Standard::Automation::ResultOf<Member>;
      Give(*result, std::get<Wanted>(CallCatalogued(server, id, given...)));
    } else {
      Give(*result, CallMember<Member>(server, id, given...));
    }
    return S_OK;
  } catch (...) {
    // Not before: it may be one of the arguments too.
    *result = {};
    return server.Report(id);
  }
}

}  // namespace ZQ7Windows

#endif  // ZQ7STANDARD_BINDINGS_WINDOWS_EARLY_BINDING_H_
