#ifndef ZQ7STANDARD_BINDINGS_WINDOWS_MODULE_H_
#define ZQ7STANDARD_BINDINGS_WINDOWS_MODULE_H_

#include <string>

#include "com.h"

/// The DLL itself.
namespace ZQ7Windows {

/// What keeps the DLL loaded: each object that a host holds has one.
class LiveMark {
 public:
  LiveMark();
  ~LiveMark();
  LiveMark(const LiveMark&) = delete;
  LiveMark& operator=(const LiveMark&) = delete;
};

/// Keeps the DLL loaded, or no longer, whatever the host holds.
void LockModule(bool lock);
bool IsModuleInUse();

void SetModuleHandle(HMODULE handle);
/// The path of the DLL.
std::wstring ModulePath();

/// The description of a class or an interface in the DLL's type library.
HRESULT FindTypeInfo(REFGUID id, ITypeInfo** found);
/// Gives back the type library, which is loaded when it is asked for.
void ReleaseTypeLibrary();

/// An identifier as "{...}".
std::wstring GuidText(REFGUID id);

}  // namespace ZQ7Windows

#endif  // ZQ7STANDARD_BINDINGS_WINDOWS_MODULE_H_
