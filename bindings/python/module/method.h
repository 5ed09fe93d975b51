#ifndef ZQ7STANDARD_BINDINGS_PYTHON_MODULE_METHOD_H_
#define ZQ7STANDARD_BINDINGS_PYTHON_MODULE_METHOD_H_

#include <ZQ7Standard/automation/catalogue.h>

#include <string_view>
#include <vector>

#include "instance.h"
#include "python.h"

namespace ZQ7Python {

/// A member of a class as Python calls it: an operation, or the reading or setting of a property.
/// A call through an instance makes no bound method.
struct Method {
  PyObject head;
  vectorcallfunc call;
  PyObject* attributes;  ///< what Python code stores: `__name__`, `__doc__`
  const ZQ7Standard::Automation::ClassInfo* owner;
  const ZQ7Standard::Automation::OperationInfo* operation;  ///< null for a property
  const ZQ7Standard::Automation::PropertyInfo* property;    ///< null for an operation
  std::vector<PyObject*>* names;  ///< of the operation's parameters, interned
};

PyTypeObject* NewMethodType();

/// The method of an operation, or of a property: with a value it sets it.
py::object NewMethod(std::string_view class_name, std::string_view member);

/// The index of the parameter with exactly that name. Raises 448 if there is none.
std::size_t ParameterNamed(const Method& method, PyObject* name);

/// Calls an operation.
ZQ7Standard::Automation::Value CallOperation(const Method& method, const Instance& instance,
                                             const ZQ7Standard::Automation::Arguments& arguments);

}  // namespace ZQ7Python

#endif  // ZQ7STANDARD_BINDINGS_PYTHON_MODULE_METHOD_H_
