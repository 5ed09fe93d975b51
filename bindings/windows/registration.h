#ifndef ZQ7STANDARD_BINDINGS_WINDOWS_REGISTRATION_H_
#define ZQ7STANDARD_BINDINGS_WINDOWS_REGISTRATION_H_

#include "com.h"

namespace ZQ7Windows {

/// Whom a registration is for: the machine, which takes an administrator, or the user alone.
enum class RegisteredFor { kMachine, kUser };

/// Makes the classes, the interfaces and the type library known to automation.
HRESULT Register(RegisteredFor whom);

/// Takes that back. What the DLLs of both architectures share stays as long as the other one is
/// registered; after that nothing is left.
HRESULT Unregister(RegisteredFor whom);

}  // namespace ZQ7Windows

#endif  // ZQ7STANDARD_BINDINGS_WINDOWS_REGISTRATION_H_
