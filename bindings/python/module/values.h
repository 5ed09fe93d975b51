#ifndef ZQ7STANDARD_BINDINGS_PYTHON_MODULE_VALUES_H_
#define ZQ7STANDARD_BINDINGS_PYTHON_MODULE_VALUES_H_

#include <ZQ7Standard/automation/catalogue.h>
#include <ZQ7Standard/automation/value.h>

#include <cstdint>
#include <string_view>

#include "instance.h"
#include "python.h"

namespace ZQ7Python {

/// Where a value goes, for messages and for the type wanted.
struct Place {
  const ZQ7Standard::Automation::ClassInfo& owner;
  std::string_view operation;
  std::string_view parameter;
  const ZQ7Standard::Automation::TypeInfo& type;
};

/// Prepares the conversion of dates. Call it once, first.
void LoadDates();

/// A text as a str: a pair of surrogates becomes one character, a single surrogate stays.
py::object TextToPython(ZQ7Standard::TextView text);
ZQ7Standard::Text TextFromPython(PyObject* text);

/// A naive datetime, or date at midnight. Raises TypeError for an aware one, and 5 before year 100.
ZQ7Standard::OleDate DateFromPython(PyObject* date, const Place& place);
py::object DateToPython(ZQ7Standard::OleDate date);

/// The same in microseconds since 1970-01-01, cut at the last microsecond of 9999.
ZQ7Standard::OleDate DateFromMicroseconds(std::int64_t microseconds, const Place& place);
std::int64_t MicrosecondsOf(ZQ7Standard::OleDate date);

/// A value for `place`; a Python object that is passed as a device or a picture is marked in
/// `busy`, or wrapped if it is the host's own. Raises TypeError for what is not a value.
ZQ7Standard::Automation::Value ValueFromPython(PyObject* object, const Place& place,
                                               BusyMarks& busy);
py::object ValueToPython(const ZQ7Standard::Automation::Value& value,
                         const ZQ7Standard::Automation::TypeInfo& type);

/// The IntEnum class of an enumeration.
py::object EnumerationClass(const ZQ7Standard::Automation::EnumerationInfo& enumeration);

}  // namespace ZQ7Python

#endif  // ZQ7STANDARD_BINDINGS_PYTHON_MODULE_VALUES_H_
