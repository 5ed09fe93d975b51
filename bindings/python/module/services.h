#ifndef ZQ7STANDARD_BINDINGS_PYTHON_MODULE_SERVICES_H_
#define ZQ7STANDARD_BINDINGS_PYTHON_MODULE_SERVICES_H_

#include <ZQ7Standard/Services.h>
#include <ZQ7Standard/automation/invoke.h>

#include <memory>
#include <string_view>

#include "instance.h"
#include "python.h"

namespace ZQ7Python {

/// A new object of a class; those of `services` that are callables are called through `callables`.
/// A `PrintPicture` is made of the file "path".
ZQ7Standard::Automation::Object MakeObject(std::string_view class_name, const py::dict& services,
                                           const std::shared_ptr<Callables>& callables);

/// Sends the events of an object to the handlers in `callables`.
std::shared_ptr<void> SubscribeTo(const ZQ7Standard::Automation::Object& object,
                                  const std::shared_ptr<Callables>& callables);

/// A Python object with the properties of the class, as a device or a picture. Raises TypeError for
/// any other class.
ZQ7Standard::Automation::Object WrapHostObject(const py::object& object,
                                               std::string_view class_name);

}  // namespace ZQ7Python

#endif  // ZQ7STANDARD_BINDINGS_PYTHON_MODULE_SERVICES_H_
