#ifndef ZQ7STANDARD_BINDINGS_PYTHON_MODULE_CATALOGUE_H_
#define ZQ7STANDARD_BINDINGS_PYTHON_MODULE_CATALOGUE_H_

#include "python.h"

namespace ZQ7Python {

/// The catalogue as dictionaries and lists, with the names of the structs' fields.
py::list ClassesToPython();
/// The IntEnum classes.
py::list EnumerationsToPython();

}  // namespace ZQ7Python

#endif  // ZQ7STANDARD_BINDINGS_PYTHON_MODULE_CATALOGUE_H_
