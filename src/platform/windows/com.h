#ifndef ZQ7STANDARD_SRC_PLATFORM_WINDOWS_COM_H_
#define ZQ7STANDARD_SRC_PLATFORM_WINDOWS_COM_H_

#include <objbase.h>
#include <oleauto.h>

#include <memory>
#include <string>

namespace ZQ7Standard {

struct ReleaseInterface {
  void operator()(IUnknown* interface_pointer) const { interface_pointer->Release(); }
};
/// An interface that is released by the destructor.
template <typename Interface>
using ComPointer = std::unique_ptr<Interface, ReleaseInterface>;

/// The thread's use of COM, until the destructor. One that the thread has already stays.
class ComUse {
 public:
  explicit ComUse(DWORD kind) : result_(CoInitializeEx(nullptr, kind)) {}
  ComUse(const ComUse&) = delete;
  ComUse& operator=(const ComUse&) = delete;
  ~ComUse() {
    if (SUCCEEDED(result_)) CoUninitialize();
  }

 private:
  HRESULT result_;
};

struct FreeBstr {
  using pointer = BSTR;
  void operator()(BSTR text) const { SysFreeString(text); }
};
using Bstr = std::unique_ptr<BSTR, FreeBstr>;

inline Bstr MakeBstr(const std::wstring& text) {
  return Bstr(SysAllocString(text.c_str()));
}

/// A variant that is cleared by the destructor.
struct Variant : VARIANT {
  Variant() : VARIANT{} {}
  Variant(const Variant&) = delete;
  Variant& operator=(const Variant&) = delete;
  ~Variant() { VariantClear(this); }
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_WINDOWS_COM_H_
