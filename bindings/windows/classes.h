#ifndef ZQ7STANDARD_BINDINGS_WINDOWS_CLASSES_H_
#define ZQ7STANDARD_BINDINGS_WINDOWS_CLASSES_H_

#include <span>

#include "server.h"

namespace ZQ7Windows {

/// Every class that hosts can create.
std::span<const ServerRow> Servers();

/// The identifier of the type library.
const GUID& LibraryId();

}  // namespace ZQ7Windows

#endif  // ZQ7STANDARD_BINDINGS_WINDOWS_CLASSES_H_
