#ifndef ZQ7STANDARD_BINDINGS_PYTHON_MODULE_COLUMNS_H_
#define ZQ7STANDARD_BINDINGS_PYTHON_MODULE_COLUMNS_H_

#include "python.h"

namespace ZQ7Python {

/// How values of a type stand in an array: "f" double, "i" 64-bit number, "b" Boolean byte, "M"
/// microseconds since 1970, "O" Python object.
char KindOfResult(const py::handle& method);

/// Calls an operation once for each row and returns how many rows have no result.
///
/// Each of `arguments` is (name or None, kind, value): a buffer of that kind with a value for each
/// row, or, if the kind is empty, one value for all. `results` is a buffer of the result's kind.
/// A row with a missing argument (NaN, NaT, or one of `missing`) has no result: 1 in `absent`. So
/// has one that fails, if `skip_errors`; else the error is raised with its `row`.
py::ssize_t Apply(const py::handle& method, const py::handle& instance, const py::list& arguments,
                  const py::buffer& results, const py::buffer& absent, bool skip_errors,
                  const py::tuple& missing);

}  // namespace ZQ7Python

#endif  // ZQ7STANDARD_BINDINGS_PYTHON_MODULE_COLUMNS_H_
