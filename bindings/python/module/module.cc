#include <ZQ7Standard/RunTimeError.h>

#include <exception>
#include <utility>

#include "catalogue.h"
#include "columns.h"
#include "errors.h"
#include "instance.h"
#include "method.h"
#include "python.h"
#include "values.h"

namespace ZQ7Python {
namespace {

// Kept for good: the interpreter may be gone when the process ends.
PythonNames* names = nullptr;

}  // namespace

const PythonNames& Python() {
  return *names;
}

void LoadPythonNames() {
  const auto support = py::module_::import("zq7standard._support");
  names = new PythonNames{.run_time_error = support.attr("RunTimeError"),
                          .wrong_call = support.attr("WrongCall"),
                          .decimal = py::module_::import("decimal").attr("Decimal"),
                          .int_enum = py::module_::import("enum").attr("IntEnum"),
                          .signature_of = support.attr("signature_of")};
}

}  // namespace ZQ7Python

PYBIND11_MODULE(_native, module) {
  using namespace ZQ7Python;
  LoadPythonNames();
  LoadDates();
  py::register_local_exception_translator([](std::exception_ptr error) {
    try {
      std::rethrow_exception(std::move(error));
    } catch (const ZQ7Standard::RunTimeError&) {
      SetPythonError();
    }
  });
  module.attr("Object") = py::handle(Face(NewInstanceType()));
  module.attr("Method") = py::handle(Face(NewMethodType()));
  module.def("method", NewMethod);
  module.def("classes", ClassesToPython);
  module.def("enumerations", EnumerationsToPython);
  module.def("kind_of_result", KindOfResult);
  module.def("apply", Apply);
}
