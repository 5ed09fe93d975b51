#ifndef ZQ7STANDARD_BINDINGS_WINDOWS_COM_H_
#define ZQ7STANDARD_BINDINGS_WINDOWS_COM_H_

#include <windows.h>
// The library has these names too, which the system's headers make others.
#undef GetComputerName
#undef GetDateFormat
#undef MessageBox

#include <dispex.h>
#include <oaidl.h>
#include <ocidl.h>
#include <oleauto.h>
#include <olectl.h>

#include <string>
#include <string_view>
#include <utility>

/// Owners of what the system's automation hands out.
namespace ZQ7Windows {

/// The roots of registrations. Named here, as compilers take these macros for the project's own once
/// a header of the library has hidden and restored them, and warn of their casts.
inline const HKEY kMachineRoot = HKEY_LOCAL_MACHINE;
inline const HKEY kUserRoot = HKEY_CURRENT_USER;

/// A reference to an interface; null if there is none.
template <typename Interface>
class ComPtr {
 public:
  ComPtr() = default;
  /// Takes over a reference.
  explicit ComPtr(Interface* owned) : pointer_(owned) {}
  ComPtr(const ComPtr& other) : pointer_(other.pointer_) {
    if (pointer_ != nullptr) pointer_->AddRef();
  }
  ComPtr(ComPtr&& other) noexcept : pointer_(std::exchange(other.pointer_, nullptr)) {}
  ComPtr& operator=(ComPtr other) noexcept {
    std::swap(pointer_, other.pointer_);
    return *this;
  }
  ~ComPtr() {
    if (pointer_ != nullptr) pointer_->Release();
  }

  /// Another reference to what the caller keeps.
  static ComPtr Share(Interface* kept) {
    if (kept != nullptr) kept->AddRef();
    return ComPtr(kept);
  }

  Interface* get() const { return pointer_; }
  Interface* operator->() const { return pointer_; }
  explicit operator bool() const { return pointer_ != nullptr; }
  Interface* release() { return std::exchange(pointer_, nullptr); }

  /// Where a function of the system puts a reference.
  Interface** Out() {
    *this = ComPtr();
    return &pointer_;
  }
  void** OutVoid() { return reinterpret_cast<void**>(Out()); }

 private:
  Interface* pointer_ = nullptr;
};

/// Another interface of an object; null if it does not have it.
template <typename Interface>
ComPtr<Interface> Query(IUnknown* object, REFIID id) {
  ComPtr<Interface> found;
  if (object == nullptr || FAILED(object->QueryInterface(id, found.OutVoid()))) return {};
  return found;
}

/// A text of automation.
class Bstr {
 public:
  Bstr() = default;
  explicit Bstr(std::wstring_view text)
      : text_(SysAllocStringLen(text.data(), static_cast<UINT>(text.size()))) {}
  Bstr(const Bstr&) = delete;
  Bstr& operator=(const Bstr&) = delete;
  ~Bstr() { SysFreeString(text_); }

  BSTR get() const { return text_; }
  BSTR* Out() { return &text_; }
  std::wstring_view View() const { return {text_, SysStringLen(text_)}; }

 private:
  BSTR text_ = nullptr;
};

/// A value of automation.
struct Variant : VARIANT {
  Variant() { VariantInit(this); }
  Variant(const Variant&) = delete;
  Variant& operator=(const Variant&) = delete;
  ~Variant() { VariantClear(this); }
};

}  // namespace ZQ7Windows

#endif  // ZQ7STANDARD_BINDINGS_WINDOWS_COM_H_
