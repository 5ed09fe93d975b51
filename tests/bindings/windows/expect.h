#ifndef ZQ7STANDARD_TESTS_BINDINGS_WINDOWS_EXPECT_H_
#define ZQ7STANDARD_TESTS_BINDINGS_WINDOWS_EXPECT_H_

#include <dispex.h>
#include <oleauto.h>
#include <olectl.h>
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "bindings/windows/com.h"

/// What the hosts of the tests share.
namespace ZQ7Windows {

inline int failures = 0;

inline void Expect(bool right, const std::string& what) {
  if (right) return;
  ++failures;
  std::printf("FAILED %s\n", what.c_str());
}

template <typename A, typename B>
void ExpectSame(const A& wanted, const B& got, const std::string& what) {
  Expect(wanted == got, what);
}

inline void ExpectDone(HRESULT result, const std::string& what) {
  char code[16];
  std::snprintf(code, sizeof code, ": %08lX", static_cast<unsigned long>(result));
  Expect(SUCCEEDED(result), what + code);
}

/// A value to pass, which owns nothing but what it copies.
inline VARIANT Of(long number) {
  VARIANT value;
  value.vt = VT_I4;
  value.lVal = number;
  return value;
}
inline VARIANT Of(double number, VARTYPE type = VT_R8) {
  VARIANT value;
  value.vt = type;
  value.dblVal = number;
  return value;
}
inline VARIANT Of(bool flag) {
  VARIANT value;
  value.vt = VT_BOOL;
  value.boolVal = flag ? VARIANT_TRUE : VARIANT_FALSE;
  return value;
}
inline VARIANT Of(const Bstr& text) {
  VARIANT value;
  value.vt = VT_BSTR;
  value.bstrVal = text.get();
  return value;
}
inline VARIANT Of(IDispatch* object) {
  VARIANT value;
  value.vt = VT_DISPATCH;
  value.pdispVal = object;
  return value;
}
inline VARIANT ReferenceTo(VARTYPE type, void* place) {
  VARIANT value;
  value.vt = static_cast<VARTYPE>(VT_BYREF | type);
  value.byref = place;
  return value;
}
inline VARIANT LeftOut() {
  VARIANT value;
  value.vt = VT_ERROR;
  value.scode = DISP_E_PARAMNOTFOUND;
  return value;
}

/// A late-bound call and its outcome.
class Late {
 public:
  Late(IDispatch* object, const wchar_t* name, std::vector<VARIANT> arguments,
       WORD flags = DISPATCH_METHOD | DISPATCH_PROPERTYGET,
       const std::vector<const wchar_t*>& named = {}) {
    std::vector<LPOLESTR> names = {const_cast<wchar_t*>(name)};
    for (const auto* text : named) names.push_back(const_cast<wchar_t*>(text));
    std::vector<DISPID> ids(names.size());
    result_ = object->GetIDsOfNames(IID_NULL, names.data(), static_cast<UINT>(names.size()),
                                    LOCALE_USER_DEFAULT, ids.data());
    if (FAILED(result_)) return;
    Invoke(object, ids[0], std::move(arguments), flags, {ids.begin() + 1, ids.end()});
  }
  Late(IDispatch* object, DISPID id, std::vector<VARIANT> arguments, WORD flags) {
    Invoke(object, id, std::move(arguments), flags, {});
  }
  Late(const Late&) = delete;
  Late& operator=(const Late&) = delete;
  ~Late() {
    SysFreeString(info_.bstrSource);
    SysFreeString(info_.bstrDescription);
  }

  HRESULT Result() const { return result_; }
  const VARIANT& Value() const { return value_; }
  std::wstring Text() const {
    if (value_.vt != VT_BSTR) return L"not a text";
    return {value_.bstrVal, SysStringLen(value_.bstrVal)};
  }
  /// The number of the run-time error; 0 if there is none.
  unsigned Error() const {
    const auto code = static_cast<unsigned>(info_.scode);
    return result_ == DISP_E_EXCEPTION && code >> 16 == 0x800A ? code & 0xFFFF : 0;
  }
  std::wstring_view Description() const {
    return {info_.bstrDescription, SysStringLen(info_.bstrDescription)};
  }
  std::wstring_view Source() const { return {info_.bstrSource, SysStringLen(info_.bstrSource)}; }
  UINT WrongArgument() const { return wrong_; }

 private:
  void Invoke(IDispatch* object, DISPID id, std::vector<VARIANT> arguments, WORD flags,
              std::vector<DISPID> named) {
    if ((flags & DISPATCH_PROPERTYPUT) != 0) named = {DISPID_PROPERTYPUT};
    // Those with names come first, and then the others from the last to the first.
    const std::vector<VARIANT> given(arguments.rbegin(), arguments.rend());
    DISPPARAMS call = {const_cast<VARIANT*>(given.data()), named.data(),
                       static_cast<UINT>(given.size()), static_cast<UINT>(named.size())};
    if ((flags & DISPATCH_PROPERTYPUT) == 0) {
      // The last arguments have the names, so the names turn round too.
      std::reverse(named.begin(), named.end());
      call.rgdispidNamedArgs = named.data();
    }
    result_ =
        object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &call, &value_, &info_, &wrong_);
  }

  HRESULT result_ = S_OK;
  Variant value_;
  EXCEPINFO info_ = {};
  UINT wrong_ = 99;
};

}  // namespace ZQ7Windows

#endif  // ZQ7STANDARD_TESTS_BINDINGS_WINDOWS_EXPECT_H_
