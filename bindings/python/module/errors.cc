#include "errors.h"

#include <string>

#include "values.h"

namespace ZQ7Python {
namespace {

using namespace ZQ7Standard;

thread_local LibraryCall* innermost = nullptr;

py::object NameOrNone(const std::string& name) {
  return name.empty() ? py::object(py::none()) : py::object(py::str(name));
}

/// A call that Python would refuse itself, if the function were its own.
bool IsWrongCall(int number) {
  return number == static_cast<int>(Error::kNamedArgumentNotFound) ||
         number == static_cast<int>(Error::kArgumentNotOptional) ||
         number == static_cast<int>(Error::kWrongNumberOfArguments);
}

void SetRunTimeError(const RunTimeError& error) {
  const ErrorDetails& details = error.Details();
  const py::object& type =
      IsWrongCall(details.number) ? Python().wrong_call : Python().run_time_error;
  const py::object raised = type(details.number, details.text);
  raised.attr("class_name") = NameOrNone(details.class_name);
  raised.attr("operation") = NameOrNone(details.operation);
  raised.attr("parameter") = NameOrNone(details.parameter);
  if (details.input) raised.attr("input") = TextToPython(*details.input);
  raised.attr("message") = py::str(error.what());
  PyErr_SetObject(type.ptr(), raised.ptr());
}

}  // namespace

void SetPythonError() {
  try {
    throw;
  } catch (const RunTimeError& error) {
    try {
      SetRunTimeError(error);
    } catch (py::error_already_set& second) {
      second.restore();
    }
  } catch (py::error_already_set& error) {
    error.restore();
  } catch (const py::builtin_exception& error) {
    error.set_error();
  } catch (const std::bad_alloc&) {
    PyErr_NoMemory();
  } catch (const std::exception& error) {
    PyErr_SetString(PyExc_RuntimeError, error.what());
  }
}

LibraryCall::LibraryCall() : outer_(innermost) {
  innermost = this;
}

LibraryCall::~LibraryCall() {
  innermost = outer_;
}

void LibraryCall::Keep(py::error_already_set& error) {
  const py::object raised = error.value();
  if (error.trace()) PyException_SetTraceback(raised.ptr(), error.trace().ptr());
  const int number = error.matches(Python().run_time_error) ? raised.attr("number").cast<int>() : 0;
  if (innermost == nullptr) {
    error.restore();
    PyErr_WriteUnraisable(nullptr);
  } else if (!innermost->error_) {
    innermost->error_ = raised;
    innermost->number_ = number;
  }
  throw RunTimeError(number != 0 ? number : static_cast<int>(Error::kAutomationError),
                     std::string(py::str(raised)));
}

void LibraryCall::RaiseKept() {
  if (!error_ || number_ != 0) return;
  PyErr_SetObject(py::type::handle_of(error_).ptr(), error_.ptr());
  throw py::error_already_set();
}

void LibraryCall::RaiseKept(const RunTimeError& failure) {
  if (number_ == failure.Number()) number_ = 0;
  RaiseKept();
}

}  // namespace ZQ7Python
