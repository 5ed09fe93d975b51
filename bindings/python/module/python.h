#ifndef ZQ7STANDARD_BINDINGS_PYTHON_MODULE_PYTHON_H_
#define ZQ7STANDARD_BINDINGS_PYTHON_MODULE_PYTHON_H_

#include <pybind11/pybind11.h>

#include <string_view>

namespace ZQ7Python {

namespace py = pybind11;

/// What the module uses of Python. It is found once, when the module is imported, and kept until
/// the process ends.
struct PythonNames {
  py::object run_time_error;  ///< zq7standard.RunTimeError
  py::object wrong_call;      ///< its subclass that is a TypeError too
  py::object decimal;         ///< decimal.Decimal
  py::object int_enum;        ///< enum.IntEnum
  py::object signature_of;    ///< makes the `__signature__` of a method
};
const PythonNames& Python();
void LoadPythonNames();

/// Takes over a new reference; throws the Python error if it is null.
inline py::object Owned(PyObject* object) {
  if (object == nullptr) throw py::error_already_set();
  return py::reinterpret_steal<py::object>(object);
}

inline py::str Str(std::string_view text) {
  return {text.data(), text.size()};
}

/// The C++ object behind a Python object whose type is known.
template <typename T>
T& Behind(PyObject* object) {
  return *reinterpret_cast<T*>(object);  // NOLINT(*-reinterpret-cast)
}
template <typename T>
PyObject* Face(T* object) {
  return reinterpret_cast<PyObject*>(object);  // NOLINT(*-reinterpret-cast)
}

}  // namespace ZQ7Python

#endif  // ZQ7STANDARD_BINDINGS_PYTHON_MODULE_PYTHON_H_
